#pragma once
#include "wizards/CellTableText.h"

#include <QString>
#include <QStringList>

#include <functional>

class ColourSwatch;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QHBoxLayout;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QWidget;

// The rows that recur in the wizards, each added to a form layout with its label and named as
// the system names its controls.
namespace WizardRows {

// A text box with its default text. Like the system's boxes it takes text of any length (a
// line box would cut it at 32767 characters).
QLineEdit* field(QWidget* parent, const QString& name, const QString& text = {});
// The same in a labelled row of its own.
QLineEdit* line(QFormLayout* rows, const QString& name, const QString& label, const QString& text = {});

// A row of a field and a button behind it (a button that Enter does not press).
QPushButton* withButton(QFormLayout* rows, const QString& label, QWidget* field, const QString& buttonName,
                        const QString& caption);

// A multi-line text box: Enter breaks the line there, Tab moves on to the next field.
QPlainTextEdit* textBox(QWidget* parent, const QString& name);
// A multi-line box's text with the page's line ends (CR LF between its lines).
QString pageText(const QPlainTextEdit* box);

// A colour field: the text box (whose text holds its double quotes), the form's swatch (which
// starts in the colour of the default text, black for one that is no colour) and the "Choose"
// button, which runs the one colour step of the colour library; a cancelled dialog applies the
// colour it held, as the wizards' convention has it.
struct ColourField {
    QLineEdit* text = nullptr;
    ColourSwatch* swatch = nullptr;
    QPushButton* choose = nullptr;
};
ColourField colour(QFormLayout* rows, const QString& textName, const QString& buttonName, const QString& swatchName,
                   const QString& label, const QString& text = QStringLiteral("\"#000000\""),
                   const QString& caption = QStringLiteral("Choose"));

// A font field: the text box (default "Arial") and its button, which opens the font dialog;
// the field then holds the dialog's font name.
struct FontField {
    QLineEdit* text = nullptr;
    QPushButton* choose = nullptr;
};
FontField font(QFormLayout* rows, const QString& textName, const QString& buttonName,
               const QString& label = QStringLiteral("Font :"), const QString& caption = QStringLiteral("Choose Font"));
// The step behind a font field's button. A cancelled dialog gives back the font it was opened
// with, so the field is set by the same step either way.
void chooseFontInto(QLineEdit* field);

// Two labelled fields on one row (a size, a position); the row's layout, for anything more.
QHBoxLayout* pair(QFormLayout* rows, const QString& firstLabel, QWidget* first, const QString& secondLabel, QWidget* second);

// An editable list with its rows and its default text; what a user types is taken as it is.
QComboBox* list(QFormLayout* rows, const QString& name, const QString& label, const QStringList& items,
                const QString& text);
// The alignment list ("Center", "Left", "Right"; default "Center").
QComboBox* alignment(QFormLayout* rows, const QString& name, const QString& label = QStringLiteral("Position :"));
// The unit of a width: Option1 "Pixels" and Option2 "%" (chosen), after the width's own field
// on the same row when one is given.
struct UnitChoice {
    QRadioButton* pixels = nullptr;   // Option1
    QRadioButton* percent = nullptr;  // Option2
};
UnitChoice unit(QFormLayout* rows, const QString& label, QWidget* field = nullptr);

// The four fields the grid and file table wizards share, with their defaults: width, alignment,
// border and back colour (each colour with its button of the given name and caption).
struct TableStyle {
    QLineEdit* txtWidth = nullptr;
    QComboBox* coAlign = nullptr;
    ColourField txtbo, txtba;
    CellTableText::Fields fields() const;
};
TableStyle tableStyle(QFormLayout* rows, const QString& borderButton, const QString& backButton, const QString& caption);

// A file location: the field (`Location`), its hidden full-length copy (`location1`), the find
// button (the file dialog with the given Qt filter; both fields take the chosen path) and the
// "Shorten location length" box: ticked, the field shows the bare file name of the copy as the
// directory look-up returns it; cleared, the full path again. A wizard that does more with a
// chosen file gives `found`, run with the path once both fields hold it (never on a cancel).
struct LocationField {
    QLineEdit* location = nullptr;  // Location
    QLineEdit* full = nullptr;      // location1
    QPushButton* find = nullptr;
    QCheckBox* shorten = nullptr;
};
struct LocationNames {
    QString location = QStringLiteral("Location");
    QString full = QStringLiteral("location1");
    QString find;
    QString shorten;
};
LocationField location(QFormLayout* rows, const LocationNames& names, const QString& label,
                       const QString& findCaption, const QString& filter,
                       const std::function<void(const QString& path)>& found = {});
// The shortened form of a location: the file's bare name when the file exists, else "" (the
// look-up finds nothing).
QString shortLocation(const QString& fullPath);

// The font-size list ("1  (8pt)" ... "7  (36pt)"; default "3  (12pt)").
QComboBox* fontSize(QFormLayout* rows, const QString& name, const QString& label = QStringLiteral("Size :"));
}
