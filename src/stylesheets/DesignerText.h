#pragma once
#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

// The style sheet designer's texts and its reading of the property list: pure functions, so that
// every byte is checked without a window.
namespace DesignerText {

// One line of the property list: four fields separated by "|". On a property row: the name,
// the current value, the type ("text", "drop", "color", "num") and, for "drop", the choices
// separated by ","; on a group row: the caption, unused, "top" and the number of rows that
// belong to the group.
struct PropertyRow {
    QString name, value, type, extra;
    bool isGroup() const { return type == QLatin1String("top"); }
    bool operator==(const PropertyRow&) const = default;
};

struct PropertyList {
    QList<PropertyRow> rows;
    // Why the bytes are no property list (a binary file); empty when they are one.
    QString fault;
};

// The list as the file holds it, line by line in order (CR LF or LF). A line with fewer than
// four fields gets empty ones; fields beyond the fourth are not read. Bytes that no text file
// holds (NUL and the other control characters but tab) make the whole file a fault, with no rows.
PropertyList readPropertyList(const QByteArray& bytes);

// The data file's place in the application folder.
QString propertyListPath(const QString& appPath);
// The two preview pages' places.
QString declarationPagePath(const QString& appPath);
QString sheetPagePath(const QString& appPath);

// Column 0 of the grid: four blanks, then the name.
QString cellName(const QString& name);
// The current declaration: column 0 (its blanks stay), ": ", the value, ";".
QString declaration(const QString& column0, const QString& value);
// The value the number editor gives: its text followed by "px"; nothing for no number.
QString numberValue(const QString& text);
// What the number editor shows of a value: its leading number ("12px" gives "12", "-1.5em"
// gives "-1.5"); "" when it does not begin with one.
QString leadingNumber(const QString& value);
// The choices of a "drop" row.
QStringList choices(const QString& extra);

// The page that shows the single declaration on the sample text.
QString declarationPage(const QString& declaration);

// The walk over the sheet at brace level: what stands outside the braces, one comma behind each
// rule, line ends removed, split at ","; and the number of rules ("}").
struct Selectors {
    QStringList names;
    int count = 0;
};
Selectors selectors(const QString& sheet);

// The page that shows what the sheet's rules do: the sheet itself as the page's style, a line
// per class, the link line when a link state has a rule, a line per heading with a rule, and
// the footer. `homePage` is the address the link lines lead to.
QString sheetPage(const QString& sheet, const QString& homePage);

// The address of the program's home page, which the preview's links lead to.
QString homePage();

// The text of a new sheet, and where its caret goes (line 0, this column): between the braces.
QString newSheet();
constexpr int newSheetCaretColumn = 7;

}
