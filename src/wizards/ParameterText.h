#pragma once
#include <QString>
#include <QStringList>

// The applet, audio and object wizards: an opening, the parameter lines typed one by one, a
// closing, delivered as separate steps.
namespace ParameterText {

// One line of the parameter list: <PARAM NAME="{txtnamenew}" VALUE="{txtvaluenew}">.
QString parameter(const QString& name, const QString& value);

// The steps of the delivery: the opening, each line in order, the closing, each with its line end.
QStringList steps(const QString& opening, const QStringList& lines, const QString& closing);

// What the three share: the sizes (default "50") and the parameter lines.
struct Common {
    QString txtheight = QStringLiteral("50");
    QString txtWidth = QStringLiteral("50");
    QStringList List1;
};

struct Applet : Common {
    QString txtcode;
    QString txtcodebase;
    QString txtalternative;
    QString txtname;
};
QStringList applet(const Applet& f);

// The rows of the audio and object wizards' alignment list ("AbsMidlle" as it always was).
QStringList alignments();

struct Audio : Common {
    QString txtfile;
    QString txtname;
    QString coallignment = QStringLiteral("Top");
    bool autostart = false;  // chkautostart
};
// The parameter lines stand inside the opening tag: the closing step is the single bracket.
// NOLABELS=TRUE is always written.
QStringList realAudio(const Audio& f);

struct Object : Common {
    QString txtcodebase;
    QString txtname;
    QString txtclass;
    QString coallignment = QStringLiteral("Top");
};
QStringList object(const Object& f);
}
