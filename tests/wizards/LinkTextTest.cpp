// The link, menu and script fragments, byte for byte, from the field texts alone.
#include "common/Utf8.h"
#include "common/JumpMenuScript.h"
#include "platform/RuntimeError.h"
#include "wizards/DropMenuText.h"
#include "wizards/ExternalWindowText.h"
#include "wizards/HyperlinkText.h"
#include "wizards/ScriptText.h"

#include <gtest/gtest.h>

namespace {

HyperlinkText::Fields link(const char* address, const char* text, bool own)
{
    HyperlinkText::Fields f;
    f.Link = u(address);
    f.text = u(text);
    f.ownColour = own;
    return f;
}
}

TEST(HyperlinkText, TheTwoNestings)
{
    HyperlinkText::Fields typed = link("C:\\My Site\\page.htm", "Go \"there\" <now>", true);
    typed.target = u("_blank");
    typed.textsize = u("4");
    typed.textfont = u("Times New Roman");
    typed.Text1 = u("\"#FF0000\"");
    HyperlinkText::Fields plainTyped = typed;
    plainTyped.ownColour = false;
    HyperlinkText::Fields empty;
    empty.target.clear();
    empty.textfont.clear();
    const struct {
        const char* name;
        HyperlinkText::Fields fields;
        const char* expected;
    } cases[] = {
        {"own colour: the font inside the link", link("page.htm", "Home", true),
         "<a href=\"page.htm\" target=\"_self\"><font size= face=Arial color=\"#000000\">Home</font></a>\r\n"},
        {"no own colour: the font around the link, no colour", link("page.htm", "Home", false),
         "<font size= face=Arial><a href=\"page.htm\" target=\"_self\">Home</a></font>\r\n"},
        {"typed values, a backslash path and quotes as they stand", typed,
         "<a href=\"C:\\My Site\\page.htm\" target=\"_blank\"><font size=4 face=Times New Roman color=\"#FF0000\">"
         "Go \"there\" <now></font></a>\r\n"},
        {"without its tick the colour field is ignored", plainTyped,
         "<font size=4 face=Times New Roman><a href=\"C:\\My Site\\page.htm\" target=\"_blank\">Go \"there\" <now></a></font>\r\n"},
        {"empty fields leave their places empty", empty,
         "<font size= face=><a href=\"\" target=\"\"></a></font>\r\n"},
        {"a line break in the text is kept", link("a.htm", "one\r\ntwo", false),
         "<font size= face=Arial><a href=\"a.htm\" target=\"_self\">one\r\ntwo</a></font>\r\n"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(HyperlinkText::fragment(c.fields), u(c.expected)) << c.name;
}

TEST(DropMenuText, TheJumpMenuWithItsScript)
{
    using DropMenuText::Jump::Fields;
    EXPECT_EQ(DropMenuText::Jump::script(), u(jumpScript));
    const Fields defaults;
    EXPECT_EQ(defaults.Text6, u(jumpScript));

    Fields one;
    one.List1 = {u("Home")};
    one.List2 = {u("HTTP://velloro.example/")};
    one.buttonname = u("Go");
    Fields named;
    named.List1 = {u("News"), u("Top & frame"), u("<b>\"q\"</b>")};
    named.List2 = {u("HTTP://a.example/news.htm"), u("HTTP://b.example/&_top"), u("HTTP://c.example/?x=\"1\"")};
    named.Text3 = u("M2");
    named.Combo2 = u("Left");
    named.Text5 = u("3");
    named.menutext = u("Pick one");
    named.Text7 = u("Verdana");
    named.backc = u("\"#C0C0C0\"");
    named.backc1 = u("red");
    const struct {
        const char* name;
        Fields fields;
        const char* expectedMenu;
    } cases[] = {
        {"one entry with the defaults", one,
         "<p align=Center><input type=Button value=Go name=B3 onclick=DropDownMenu(D1) >         <select size= name=D1 "
         "style=font-family: Arial; background-color: #FFFFFF; color: #000000 > \r\n"
         "<option value=Menu>Click Here</option>\r\n"
         "<option value=HTTP://velloro.example/>Home</option>\r\n"
         "</select></p>\r\n"},
        {"the button calls D1 whatever the name; entries in order, quotes and tags as they stand", named,
         "<p align=Left><input type=Button value= name=B3 onclick=DropDownMenu(D1) >         <select size=3 name=M2 "
         "style=font-family: Verdana; background-color: \"#C0C0C0\"; color: red > \r\n"
         "<option value=Menu>Pick one</option>\r\n"
         "<option value=HTTP://a.example/news.htm>News</option>\r\n"
         "<option value=HTTP://b.example/&_top>Top & frame</option>\r\n"
         "<option value=HTTP://c.example/?x=\"1\"><b>\"q\"</b></option>\r\n"
         "</select></p>\r\n"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(DropMenuText::Jump::menu(c.fields), u(c.expectedMenu)) << c.name;
        EXPECT_EQ(DropMenuText::Jump::fragment(c.fields), u(jumpScript) + u("\r\n") + u(c.expectedMenu)) << c.name;
    }
}

TEST(DropMenuText, TheFormMenu)
{
    using DropMenuText::Form::Fields;
    Fields ab;
    ab.List1 = {u("a")};
    ab.List2 = {u("b")};
    Fields two;
    two.List1 = {u("First"), u("")};
    two.List2 = {u("HTTP://one.example"), u("HTTP://")};
    two.Text3 = u("choice");
    two.Combo2 = u("Right");
    two.Text5 = u("1");
    const struct {
        const char* name;
        Fields fields;
        const char* expected;
    } cases[] = {
        {"one entry a with link b", ab,
         "<p align=Center><input type=submit value=Submit name=B1><input type=reset value=Reset name=B2>            "
         "<select size= name=D1>         \r\n"
         "<option value=Menu> Click Here </option>\r\n"
         "<option value=b>a</option>\r\n"
         "</select></p>\r\n"},
        {"two entries, one of them added empty", two,
         "<p align=Right><input type=submit value=Submit name=B1><input type=reset value=Reset name=B2>            "
         "<select size=1 name=choice>         \r\n"
         "<option value=Menu> Click Here </option>\r\n"
         "<option value=HTTP://one.example>First</option>\r\n"
         "<option value=HTTP://></option>\r\n"
         "</select></p>\r\n"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(DropMenuText::Form::fragment(c.fields), u(c.expected)) << c.name;
    EXPECT_EQ(DropMenuText::Form::firstOption, u("<option value=Menu> Click Here </option>"));
    // The options alone: the first one, then each entry behind a line end; a link list shorter
    // than the texts leaves the value empty.
    EXPECT_EQ(DropMenuText::options(u("<first>"), {}, {}), u("<first>"));
    EXPECT_EQ(DropMenuText::options(u("<first>"), {u("x"), u("y")}, {u("1")}),
              u("<first>\r\n<option value=1>x</option>\r\n<option value=>y</option>"));
}

TEST(ScriptText, TheFourCases)
{
    using ScriptText::Language;
    auto fields = [](Language language, bool server, const char* other, const char* script) {
        ScriptText::Fields f;
        f.language = language;
        f.server = server;
        f.txtOther = u(other);
        f.txtScript = u(script);
        return f;
    };
    const struct {
        const char* name;
        ScriptText::Fields fields;
        const char* expected;
    } cases[] = {
        {"JavaScript", fields(Language::JavaScript, false, "", "alert('hi');"),
         "<script language=\"JavaScript\"><!--\r\nalert('hi');\r\n// --></script>"},
        {"JavaScript ignores the server box and the other name", fields(Language::JavaScript, true, "Perl", "x"),
         "<script language=\"JavaScript\"><!--\r\nx\r\n// --></script>"},
        {"VBScript run on the server", fields(Language::VBScript, true, "", "x"), "<%x%>"},
        {"VBScript", fields(Language::VBScript, false, "", "MsgBox \"Hi\"\r\nEnd"),
         "<script language=\"VBScript\"><!--\r\nMsgBox \"Hi\"\r\nEnd\r\n--></script>"},
        {"Other with no name is JavaScript on one line", fields(Language::Other, true, "", "a < b"),
         "<script language=\"JavaScript\">a < b</script>"},
        {"an empty script keeps its lines", fields(Language::JavaScript, false, "", ""),
         "<script language=\"JavaScript\"><!--\r\n\r\n// --></script>"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ScriptText::fragment(c.fields), u(c.expected)) << c.name;

    // A named other language asks the document for a member it does not have.
    try {
        ScriptText::fragment(fields(Language::Other, false, "Perl", "print 1;"));
        ADD_FAILURE() << "no run-time error";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.number, 438);
        EXPECT_EQ(e.description, u("Object doesn't support this property or method"));
    }
}

TEST(ExternalWindowText, TheLaunchScript)
{
    auto script = [](const char* location, const char* width, const char* height, const char* text) {
        return u("<script LANGUAGE=JavaScript>\r\n"
                 "<!--//hide script from old browsers\r\n"
                 "function launch() { \r\n"
                 "open('") +
               u(location) +
               u("', 'tipofday', 'resizable=no, toolbar=no, location=no, directories=no, status=no, menubar=no, "
                 "scrollbars=yes, width=") +
               u(width) + u(", height=") + u(height) +
               u("') }\r\n"
                 "document.write('<p align=center><A HREF=javascript:launch()>") +
               u(text) +
               u("!</A>')\r\n"
                 "//end hiding contents -->\r\n"
                 "</script>");
    };
    ExternalWindowText::Fields page;
    page.Location = u("page.html");
    ExternalWindowText::Fields windows;
    windows.Location = u("C:\\Site\\it's.htm");
    windows.Text1 = u("");
    windows.Text2 = u("50%");
    windows.Text3 = u("<b>Open</b>");
    const struct {
        const char* name;
        ExternalWindowText::Fields fields;
        QString expected;
    } cases[] = {
        {"the defaults: the link text keeps its two blanks and gains its !", page,
         script("page.html", "400", "300", "Click Here For  New Page")},
        {"a path with backslashes and a quote, an empty width, tags in the text", windows,
         script("C:\\Site\\it's.htm", "", "50%", "<b>Open</b>")},
        {"nothing at all", ExternalWindowText::Fields{u(""), u(""), u(""), u("")}, script("", "", "", "")},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ExternalWindowText::fragment(c.fields), c.expected) << c.name;
}
