// The style sheet designer's texts: the property list as read, the declaration and its page, the
// brace-level walk over a sheet and the preview page it gives, and the shipped property list.
#include "stylesheets/DesignerText.h"

#include <QFile>
#include <QSet>
#include <gtest/gtest.h>

using DesignerText::PropertyRow;

namespace {
const QString home = QStringLiteral("https://velloro.example/");
const QString head = QStringLiteral("<html><head><title>Preview</title>\r\n<style type=text/css>\r\n");
const QString footer = QStringLiteral("<p align=center><font size=2><a href=https://velloro.example/ target=_blank>"
                                      "Created By Velloro 2002</a></font></p>\r\n</body></html>");
// The page up to its body, around a sheet.
QString opening(const QString& sheet) { return head + sheet + QStringLiteral("\r\n</style>\r\n</head>\r\n<body>\r\n"); }
QString classLine(const QString& c) { return QStringLiteral("\r\n<p><div class=") + c + QStringLiteral(">Class ") + c + QStringLiteral("</div></p>\r\n"); }
const QString linkLine = QStringLiteral("<a href=https://velloro.example/ target=_blank>Element a</a><br>\r\n");

TEST(DesignerText, ReadsThePropertyListLineByLine)
{
    struct Case {
        const char* name;
        QByteArray bytes;
        QList<PropertyRow> rows;
    } cases[] = {
        {"empty file", "", {}},
        {"group and property, CR LF",
         "Font||top|1\r\nfont-style||drop|normal,italic\r\n",
         {{"Font", "", "top", "1"}, {"font-style", "", "drop", "normal,italic"}}},
        {"LF and no last line end", "color|red|color|\nwidth||num|",
         {{"color", "red", "color", ""}, {"width", "", "num", ""}}},
        {"short lines get empty fields", "width|10px\nlonely\n\n",
         {{"width", "10px", "", ""}, {"lonely", "", "", ""}, {"", "", "", ""}}},
        {"fields beyond the fourth are not read", "a|b|drop|x,y|extra|more\r\n", {{"a", "b", "drop", "x,y"}}},
        {"a byte order mark is no part of the first name", "\xEF\xBB\xBF" "Font||top|0\r\n", {{"Font", "", "top", "0"}}},
        {"Windows-1252 text", "font-family|Caf\xE9|text|\r\n", {{"font-family", QStringLiteral("Caf\u00E9"), "text", ""}}},
    };
    for (const Case& c : cases) {
        const DesignerText::PropertyList list = DesignerText::readPropertyList(c.bytes);
        EXPECT_TRUE(list.fault.isEmpty()) << c.name;
        EXPECT_EQ(list.rows, c.rows) << c.name;
    }
    // Control bytes mean a binary file: no rows, and the reason.
    for (const QByteArray& binary : {QByteArray("Font||top|1\r\n\0\0\0", 16), QByteArray("\x7F" "ELF\x02\x01\x01")}) {
        const DesignerText::PropertyList list = DesignerText::readPropertyList(binary);
        EXPECT_TRUE(list.rows.isEmpty());
        EXPECT_EQ(list.fault, QStringLiteral("it is not a text file"));
    }
    // Many lines are read in order.
    QByteArray many;
    for (int i = 0; i < 100000; ++i)
        many += "p" + QByteArray::number(i) + "||num|\r\n";
    const DesignerText::PropertyList big = DesignerText::readPropertyList(many);
    ASSERT_EQ(big.rows.size(), 100000);
    EXPECT_EQ(big.rows[99999], (PropertyRow{"p99999", "", "num", ""}));
}

TEST(DesignerText, CellsDeclarationsAndNumbers)
{
    EXPECT_EQ(DesignerText::cellName(QStringLiteral("color")), QStringLiteral("    color"));
    EXPECT_EQ(DesignerText::declaration(QStringLiteral("    color"), QStringLiteral("#FF0000")),
              QStringLiteral("    color: #FF0000;"));
    EXPECT_EQ(DesignerText::declaration(QStringLiteral("    color"), QString()), QStringLiteral("    color: ;"));
    EXPECT_EQ(DesignerText::numberValue(QStringLiteral("12")), QStringLiteral("12px"));
    EXPECT_EQ(DesignerText::numberValue(QStringLiteral("-3")), QStringLiteral("-3px"));
    EXPECT_EQ(DesignerText::numberValue(QString()), QString());
    const std::pair<const char*, const char*> numbers[] = {
        {"12px", "12"}, {"-1.5em", "-1.5"}, {" 40 ", "40"}, {"+2", "+2"}, {"0", "0"},
        {"auto", ""}, {"", ""}, {"-", ""}, {".", ""}, {".5em", ".5"}, {"1.2.3", "1.2"},
    };
    for (const auto& [value, number] : numbers)
        EXPECT_EQ(DesignerText::leadingNumber(QString::fromLatin1(value)), QString::fromLatin1(number)) << value;
    EXPECT_EQ(DesignerText::choices(QStringLiteral("none,underline")), (QStringList{"none", "underline"}));
    EXPECT_EQ(DesignerText::newSheet(), QStringLiteral(".line{           }"));
    // The caret of a new sheet stands between its braces.
    EXPECT_EQ(DesignerText::newSheetCaretColumn, 7);
    EXPECT_EQ(DesignerText::propertyListPath(QStringLiteral("/app")), QStringLiteral("/app/Options/CSS/IE6.DAT"));
    EXPECT_EQ(DesignerText::declarationPagePath(QStringLiteral("/app")), QStringLiteral("/app/Options/CSS/Sample.htm"));
    EXPECT_EQ(DesignerText::sheetPagePath(QStringLiteral("/app")), QStringLiteral("/app/Options/CSS/CSSPreview.htm"));
}

TEST(DesignerText, DeclarationPageShowsTheSampleText)
{
    EXPECT_EQ(DesignerText::declarationPage(QStringLiteral("    color: #FF0000;")),
              QStringLiteral("<html><head><title>Velloro 2002 CSS Preview</title><style type=text/css>.tspreview{\r\n"
                             "    color: #FF0000;\r\n"
                             "}</style></head><body><p align=center><div class=tspreview>Sample Text</div></p>"
                             "</body></html>"));
    EXPECT_EQ(DesignerText::declarationPage(QString()),
              QStringLiteral("<html><head><title>Velloro 2002 CSS Preview</title><style type=text/css>.tspreview{\r\n"
                             "\r\n}</style></head><body><p align=center><div class=tspreview>Sample Text</div></p>"
                             "</body></html>"));
}

TEST(DesignerText, SelectorsAreWhatStandsOutsideTheBraces)
{
    struct Case {
        const char* sheet;
        QStringList names;
        int count;
    } cases[] = {
        {"", {""}, 0},
        {"p {color: red", {"p "}, 0},
        {"a:link{color:red}", {"a:link", ""}, 1},
        // Two rules: the closing comma gives one entry more than the count.
        {".a{}\r\n.b{x:y}", {".a", ".b", ""}, 2},
        {"/* top */\r\nh1 {}", {"/* top */h1 ", ""}, 1},
        {"h1, h2 {}", {"h1", " h2 ", ""}, 1},
        {"td\r\np {}", {"tdp ", ""}, 1},
        {"td\np {}", {"tdp ", ""}, 1},
        {"}x{", {"}", "x"}, 1},
    };
    for (const Case& c : cases) {
        const DesignerText::Selectors s = DesignerText::selectors(QString::fromLatin1(c.sheet));
        EXPECT_EQ(s.names, c.names) << c.sheet;
        EXPECT_EQ(s.count, c.count) << c.sheet;
    }
}

TEST(DesignerText, SheetPageShowsClassesLinksAndHeadings)
{
    struct Case {
        const char* sheet;
        QString body;  // between the opening and the footer
    } cases[] = {
        {"p {color: red", {}},
        {"a:link{color:red}", linkLine},
        {".x{}", classLine(QStringLiteral("x"))},
        // The four spellings of a name; a second blank makes it a class.
        {"a:hover {}\r\n a:visited{}\r\n a:active {}", linkLine},
        {"  h2{}", classLine(QStringLiteral("  h2"))},
        // Headings come in their order after the link, whatever the sheet's order.
        {"h3{}h1 {}a:link{}.big.red{}", classLine(QStringLiteral("bigred")) + linkLine +
                                              QStringLiteral("<H1>Element H1</H1><br>\r\n<H3>Element H3</H3><br>\r\n")},
        {"h1{}h2{}h3{}h4{}h5{}h6{}h7{}",
         classLine(QStringLiteral("h7")) +
             QStringLiteral("<H1>Element H1</H1><br>\r\n<H2>Element H2</H2><br>\r\n<H3>Element H3</H3><br>\r\n"
                            "<H4>Element H4</H4><br>\r\n<H5>Element H5</H5><br>\r\n<H6>Element H6</H6><br>\r\n")},
        // A comment outside the braces is part of the next name; a compound selector stays whole.
        {"/* c */ .n{}", classLine(QStringLiteral("/* c */ n"))},
        {"div p {}", classLine(QStringLiteral("div p "))},
        // Upper case is not a spelling: the preview has turned the sheet to small letters first.
        {"A:link{}", classLine(QStringLiteral("A:link"))},
        {"}", classLine(QStringLiteral("}"))},
    };
    for (const Case& c : cases) {
        const QString sheet = QString::fromLatin1(c.sheet);
        EXPECT_EQ(DesignerText::sheetPage(sheet, home), opening(sheet) + c.body + footer) << c.sheet;
    }
    EXPECT_EQ(DesignerText::homePage(), home);
}

// The shipped property list: every line is a group or a property in the four-field form, every
// group's count covers exactly the properties up to the next group, and the properties a page
// author needs are there with editors that fit their values.
TEST(DesignerText, ShippedPropertyListIsComplete)
{
    QFile file(QStringLiteral(VELLORO_SOURCE_DATA) + QStringLiteral("/Options/CSS/IE6.DAT"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.endsWith("\r\n"));
    EXPECT_EQ(bytes.count("\n"), bytes.count("\r\n"));
    for (const QByteArray& line : bytes.split('\n')) {
        if (!line.isEmpty()) {
            EXPECT_EQ(line.count('|'), 3) << line.constData();
        }
    }
    const DesignerText::PropertyList list = DesignerText::readPropertyList(bytes);
    ASSERT_TRUE(list.fault.isEmpty());
    ASSERT_FALSE(list.rows.isEmpty());
    ASSERT_TRUE(list.rows[0].isGroup());

    const QSet<QString> types{"text", "drop", "color", "num"};
    QHash<QString, PropertyRow> byName;
    int groups = 0;
    for (int i = 0; i < list.rows.size();) {
        const PropertyRow& group = list.rows[i];
        ASSERT_TRUE(group.isGroup()) << group.name.toStdString();
        ++groups;
        bool ok = false;
        const int count = group.extra.toInt(&ok);
        ASSERT_TRUE(ok && count > 0) << group.name.toStdString();
        ASSERT_LE(i + count, list.rows.size() - 1) << group.name.toStdString();
        for (int k = i + 1; k <= i + count; ++k) {
            const PropertyRow& p = list.rows[k];
            EXPECT_TRUE(types.contains(p.type)) << p.name.toStdString();
            EXPECT_FALSE(byName.contains(p.name)) << "twice: " << p.name.toStdString();
            EXPECT_EQ(p.name, p.name.trimmed().toLower()) << p.name.toStdString();
            EXPECT_EQ(p.type == QLatin1String("drop"), !p.extra.isEmpty()) << p.name.toStdString();
            if (p.type == QLatin1String("drop")) {
                const QStringList choices = DesignerText::choices(p.extra);
                EXPECT_EQ(QSet<QString>(choices.begin(), choices.end()).size(), choices.size()) << p.name.toStdString();
                for (const QString& c : choices)
                    EXPECT_EQ(c, c.trimmed()) << p.name.toStdString();
            }
            byName.insert(p.name, p);
        }
        i += count + 1;
    }
    EXPECT_GE(groups, 10);
    EXPECT_GE(byName.size(), 150);

    // Properties and their editors: a number editor writes px, so only lengths have one.
    const std::pair<const char*, const char*> needed[] = {
        {"color", "color"}, {"background-color", "color"}, {"border-color", "color"}, {"font-family", "text"},
        {"font-size", "num"}, {"font-weight", "drop"}, {"text-align", "drop"}, {"text-decoration", "drop"},
        {"margin", "text"}, {"margin-top", "num"}, {"padding-left", "num"}, {"width", "num"}, {"height", "num"},
        {"border-style", "drop"}, {"display", "drop"}, {"position", "drop"}, {"float", "drop"}, {"clear", "drop"},
        {"overflow", "drop"}, {"z-index", "text"}, {"opacity", "text"}, {"flex-direction", "drop"},
        {"flex-wrap", "drop"}, {"flex", "text"}, {"flex-grow", "text"}, {"order", "text"},
        {"justify-content", "drop"}, {"align-items", "drop"}, {"gap", "num"}, {"grid-template-columns", "text"},
        {"grid-template-areas", "text"}, {"grid-column", "text"}, {"grid-auto-flow", "drop"},
        {"transition", "text"}, {"transition-timing-function", "drop"}, {"animation", "text"},
        {"transform", "text"}, {"transform-origin", "drop"}, {"border-radius", "text"},
        {"border-top-left-radius", "num"}, {"box-shadow", "text"}, {"text-shadow", "text"},
        {"box-sizing", "drop"}, {"list-style-type", "drop"}, {"border-collapse", "drop"}, {"cursor", "drop"},
        {"--main-color", "color"}, {"line-height", "text"}, {"visibility", "drop"}, {"object-fit", "drop"},
    };
    for (const auto& [name, type] : needed) {
        ASSERT_TRUE(byName.contains(QLatin1String(name))) << name;
        EXPECT_EQ(byName[QLatin1String(name)].type, QLatin1String(type)) << name;
    }
    const std::pair<const char*, const char*> keywords[] = {
        {"display", "flex"}, {"display", "grid"}, {"display", "inline-block"}, {"display", "none"},
        {"position", "sticky"}, {"justify-content", "space-between"}, {"align-items", "center"},
        {"flex-direction", "column"}, {"box-sizing", "border-box"}, {"text-decoration", "line-through"},
        {"font-weight", "bold"}, {"font-weight", "700"}, {"border-style", "dashed"}, {"cursor", "pointer"},
        {"transition-timing-function", "ease-in-out"}, {"white-space", "nowrap"}, {"background-size", "cover"},
    };
    for (const auto& [name, keyword] : keywords)
        EXPECT_TRUE(DesignerText::choices(byName[QLatin1String(name)].extra).contains(QLatin1String(keyword)))
            << name << " " << keyword;
    // A custom property is named with two dashes.
    EXPECT_TRUE(byName.contains(QStringLiteral("--spacing")));
}

}
