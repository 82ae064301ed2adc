#pragma once
#include <QString>
#include <QStringList>

// The two drop-down menus: the jump menu with its script and the form menu. Both list their
// entries the same way, from two parallel lists: the texts shown and the values.
namespace DropMenuText {

// The first option, then for each entry a line end and <option value={link}>{text}</option>.
QString options(const QString& first, const QStringList& texts, const QStringList& links);

// The jump menu: a button that goes to the chosen entry through the script.
namespace Jump {
// The script that jumps to an entry's value; a value may carry a target behind an "&".
QString script();

struct Fields {
    QString Text6 = script();
    QString menutext = QStringLiteral("Click Here");
    QString buttonname;
    QString Text3 = QStringLiteral("D1");   // the select's name
    QString Combo2 = QStringLiteral("Center");
    QString Text5;                          // height
    QString Text7 = QStringLiteral("Arial");
    QString backc = QStringLiteral("#FFFFFF");
    QString backc1 = QStringLiteral("#000000");
    QStringList List1;  // entry texts
    QStringList List2;  // entry links
};

// The paragraph with the button and the select: the button always calls DropDownMenu(D1),
// whatever the select's name; nine blanks before <select; the options; </select></p> and a
// line end.
QString menu(const Fields& f);
// The script, a line end and the menu.
QString fragment(const Fields& f);
}

// The form menu: submit and reset buttons beside a select, no script.
namespace Form {
inline const QString firstOption = QStringLiteral("<option value=Menu> Click Here </option>");

struct Fields {
    QString Text3 = QStringLiteral("D1");
    QString Combo2 = QStringLiteral("Center");
    QString Text5;
    QStringList List1;
    QStringList List2;
};

// Twelve blanks before <select, nine after its ">"; the fixed first option, the entries,
// </select></p> and a line end.
QString fragment(const Fields& f);
}
}
