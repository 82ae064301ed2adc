// The picture, media and parameter wizards' fragments, byte for byte, from the field texts alone.
#include "common/Utf8.h"
#include "common/QtPrinters.h"
#include "wizards/Html.h"
#include "wizards/ImageText.h"
#include "wizards/MediaText.h"
#include "wizards/ParameterText.h"

#include <gtest/gtest.h>

namespace {

ImageText::Fields picture(const char* location, const char* width, const char* height)
{
    ImageText::Fields f;
    f.Location = u(location);
    f.picwidth = u(width);
    f.picheight = u(height);
    return f;
}
}

TEST(ImageText, Fragments)
{
    ImageText::Fields plain = picture("pics/a.gif", "99.009900990099", "49.5049504950495");
    ImageText::Fields percent = picture("a.png", "50", "25");
    percent.percent = true;
    percent.align = u("Right");
    percent.picborder = u("2");
    ImageText::Fields style = picture("C:/x y/b.jpg", "10", "20");
    style.absolute = true;
    style.picborder = u("0");
    style.txleft = u("15px");
    style.txtop = u("30px");
    style.align = u("Left");  // not part of the style form
    ImageText::Fields stylePercent = style;
    stylePercent.percent = true;
    ImageText::Fields odd = picture("say \"hi\" <b>, ü.gif", "a\r\nb", "<");
    odd.align = QString();
    const struct {
        const char* name;
        ImageText::Fields fields;
        const char* expected;
    } cases[] = {
        {"the paragraph form in pixels", plain,
         "<p align=Center><img border= src=\"pics/a.gif\" width=99.009900990099 height=49.5049504950495></p>"},
        {"the paragraph form in percent", percent, "<p align=Right><img border=2 src=\"a.png\" width=50% height=25%></p>"},
        {"the style form in pixels: two blanks before width", style,
         "<p><img border=0 src=\"C:/x y/b.jpg\" style=position: absolute; left: 15px Top: 30px  width=10 height=20></img></p>"},
        {"the style form in percent: one blank", stylePercent,
         "<p><img border=0 src=\"C:/x y/b.jpg\" style=position: absolute; left: 15px Top: 30px width=10% height=20%></img></p>"},
        {"all empty", ImageText::Fields{}, "<p align=Center><img border= src=\"\" width= height=></p>"},
        {"quotes, brackets, line breaks go in as they stand", odd,
         "<p align=><img border= src=\"say \"hi\" <b>, ü.gif\" width=a\r\nb height=<></p>"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ImageText::fragment(c.fields), u(c.expected)) << c.name;

    // A megabyte of location goes in whole.
    const QString big(1 << 20, QLatin1Char('x'));
    ImageText::Fields large = picture("", "1", "2");
    large.Location = big;
    EXPECT_EQ(ImageText::fragment(large), u("<p align=Center><img border= src=\"") + big + u("\" width=1 height=2></p>"));
}

TEST(ImageText, NaturalSizeAndAspectRatio)
{
    // Pixels times 15 twips, divided by 15.15, with the fraction to fifteen significant digits.
    const std::pair<int, const char*> sizes[] = {
        {100, "99.009900990099"}, {1, "0.99009900990099"}, {0, "0"},         {303, "300"},
        {50, "49.5049504950495"}, {640, "633.663366336634"}, {20000, "19801.9801980198"}, {1010, "1000"},
    };
    for (const auto& [pixels, text] : sizes)
        EXPECT_EQ(ImageText::naturalSize(pixels), u(text)) << pixels;

    // picwidth × (picheight1 / picwidth1), unrounded; nothing when the arithmetic fails.
    const struct {
        const char *width, *height1, *width1;
        std::optional<const char*> height;
    } ratios[] = {
        {"200", "50", "100", "100"},
        {"50", "99.009900990099", "198.01980198019801", "25"},
        {"10", "1", "3", "3.33333333333333"},
        {" 7 ", "2", "1", "14"},
        {"0", "5", "10", "0"},
        {"-4", "3", "2", "-6"},
        {"", "50", "100", std::nullopt},
        {"abc", "50", "100", std::nullopt},
        {"10", "", "", std::nullopt},
        {"10", "5", "0", std::nullopt},
        {"10", "0", "0", std::nullopt},
        {"1e308", "1e308", "1", std::nullopt},
        {"12px", "1", "1", std::nullopt},
    };
    for (const auto& r : ratios) {
        const auto got = ImageText::keptHeight(u(r.width), u(r.height1), u(r.width1));
        ASSERT_EQ(got.has_value(), r.height.has_value()) << r.width << " " << r.height1 << " " << r.width1;
        if (got) {
            EXPECT_EQ(*got, u(*r.height)) << r.width;
        }
    }
}

TEST(Html, NumberFormat)
{
    const std::pair<double, const char*> numbers[] = {
        {50, "50"}, {100.0 / 3, "33.3333333333333"}, {100.0 / 7, "14.2857142857143"}, {0.5, "0.5"}, {-2.25, "-2.25"}, {0, "0"},
    };
    for (const auto& [value, text] : numbers)
        EXPECT_EQ(Html::number(value), u(text)) << value;
}

TEST(MediaText, Sound)
{
    MediaText::Sound f;
    f.mlocation = u("a.wav");
    EXPECT_EQ(MediaText::sound(f), u("<bgsound src=\"a.wav\" loop=-1></bgsound>"));
    f.mlocation = u("/home/me/Mü sic/b, c.mp3");
    f.mloop = u("3");
    EXPECT_EQ(MediaText::sound(f), u("<bgsound src=\"/home/me/Mü sic/b, c.mp3\" loop=3></bgsound>"));
    f.mlocation = u("\"q\"<\r\n");
    f.mloop = QString();
    EXPECT_EQ(MediaText::sound(f), u("<bgsound src=\"\"q\"<\r\n\" loop=></bgsound>"));
}

TEST(MediaText, Movie)
{
    MediaText::Movie f;
    f.vlocation = u("clip.avi");
    EXPECT_EQ(MediaText::movie(f), u("<embed src=clip.avi width=400 height=400 border= align=top >"));
    f.loop = true;
    EXPECT_EQ(MediaText::movie(f), u("<embed src=clip.avi width=400 height=400 border=loop=true  align=top>"));
    f.mborder = u("2");
    f.Combo1 = u("bottom");
    f.mwidth = u("320");
    f.mheight = u("240");
    EXPECT_EQ(MediaText::movie(f), u("<embed src=clip.avi width=320 height=240 border=2loop=true  align=bottom>"));
    f.loop = false;
    f.vlocation = u("my film.mov");
    EXPECT_EQ(MediaText::movie(f), u("<embed src=my film.mov width=320 height=240 border=2 align=bottom >"));
    EXPECT_EQ(MediaText::alignments(), (QStringList{u("top"), u("middle"), u("bottom")}));
}

TEST(ParameterText, StepsOfTheThreeWizards)
{
    EXPECT_EQ(ParameterText::parameter(u("autoplay"), u("true")), u("<PARAM NAME=\"autoplay\" VALUE=\"true\">"));
    EXPECT_EQ(ParameterText::parameter(QString(), u("a \"b\" <c>")), u("<PARAM NAME=\"\" VALUE=\"a \"b\" <c>\">"));
    const QStringList two = {u("<PARAM NAME=\"a\" VALUE=\"1\">"), u("<PARAM NAME=\"b\" VALUE=\"2\">")};

    ParameterText::Applet applet;
    applet.txtcode = u("Clock.class");
    applet.txtcodebase = u("classes/");
    applet.txtalternative = u("A clock");
    applet.txtname = u("clock");
    ParameterText::Audio audio;
    audio.txtfile = u("song.rpm");
    audio.txtname = u("player");
    ParameterText::Audio audioStarting = audio;
    audioStarting.autostart = true;
    audioStarting.coallignment = u("AbsMidlle");
    audioStarting.txtheight = u("30");
    audioStarting.txtWidth = u("200");
    ParameterText::Object object;
    object.txtcodebase = u("ctl.cab");
    object.txtname = u("ctl");
    object.txtclass = u("clsid:0001");
    object.coallignment = u("Middle");

    const struct {
        const char* name;
        QStringList steps;
        QStringList expected;
    } cases[] = {
        {"an applet without parameters: opening and closing still", ParameterText::applet(applet),
         {u("<APPLET CODEBASE=classes/ CODE=Clock.class ALT=A clock NAME=clock HEIGHT=50 WIDTH=50>\r\n"), u("</APPLET>\r\n")}},
        {"an empty applet", ParameterText::applet({}),
         {u("<APPLET CODEBASE= CODE= ALT= NAME= HEIGHT=50 WIDTH=50>\r\n"), u("</APPLET>\r\n")}},
        {"audio: NOLABELS always, the lines inside the tag, the single bracket last", ParameterText::realAudio(audio),
         {u("<EMBED SRC=song.rpm NAME=player type=audio/x-pn-realaudio-plugin ALIGN=Top HEIGHT=50 WIDTH=50 CONTROLS=all "
            "AUTOSTART=FALSE NOLABELS=TRUE\r\n"),
          u(">\r\n")}},
        {"audio that starts by itself", ParameterText::realAudio(audioStarting),
         {u("<EMBED SRC=song.rpm NAME=player type=audio/x-pn-realaudio-plugin ALIGN=AbsMidlle HEIGHT=30 WIDTH=200 "
            "CONTROLS=all AUTOSTART=TRUE NOLABELS=TRUE\r\n"),
          u(">\r\n")}},
        {"an object", ParameterText::object(object),
         {u("<OBJECT CODEBASE=ctl.cab NAME=ctl CLASSID=clsid:0001 ALIGN=Middle HEIGHT=50 WIDTH=50>\r\n"), u("</OBJECT>\r\n")}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.steps, c.expected) << c.name;

    // The parameter lines go between, in order, each a step of its own with its line end.
    object.List1 = two;
    EXPECT_EQ(ParameterText::object(object),
              (QStringList{u("<OBJECT CODEBASE=ctl.cab NAME=ctl CLASSID=clsid:0001 ALIGN=Middle HEIGHT=50 WIDTH=50>\r\n"),
                           u("<PARAM NAME=\"a\" VALUE=\"1\">\r\n"), u("<PARAM NAME=\"b\" VALUE=\"2\">\r\n"),
                           u("</OBJECT>\r\n")}));
    audio.List1 = two;
    EXPECT_EQ(ParameterText::realAudio(audio).mid(1), (QStringList{u("<PARAM NAME=\"a\" VALUE=\"1\">\r\n"),
                                                                   u("<PARAM NAME=\"b\" VALUE=\"2\">\r\n"), u(">\r\n")}));
    EXPECT_EQ(ParameterText::alignments(), (QStringList{u("Top"), u("AbsBottom"), u("AbsMidlle"), u("Baseline"), u("Bottom"),
                                                        u("Left"), u("Middle"), u("Right"), u("TextTop")}));
    const ParameterText::Common defaults;
    EXPECT_EQ(defaults.txtheight, u("50"));
    EXPECT_EQ(defaults.txtWidth, u("50"));
}
