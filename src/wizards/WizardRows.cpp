#include "wizards/WizardRows.h"

#include "colour/ColourSwatch.h"
#include "colour/ColourText.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "wizards/Html.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

#include <limits>

namespace WizardRows {

QLineEdit* line(QFormLayout* rows, const QString& name, const QString& label, const QString& text)
{
    QLineEdit* edit = field(rows->parentWidget(), name, text);
    rows->addRow(label, edit);
    return edit;
}

QLineEdit* field(QWidget* parent, const QString& name, const QString& text)
{
    auto* edit = Look::named(new QLineEdit(parent), name);
    edit->setMaxLength(std::numeric_limits<int>::max());
    edit->setText(text);
    return edit;
}

QPushButton* withButton(QFormLayout* rows, const QString& label, QWidget* field, const QString& buttonName,
                        const QString& caption)
{
    QPushButton* button = Look::faceButton(buttonName, caption, rows->parentWidget());
    button->setAutoDefault(false);
    auto* row = new QHBoxLayout;
    row->addWidget(field, 1);
    row->addWidget(button);
    rows->addRow(label, row);
    return button;
}

QPlainTextEdit* textBox(QWidget* parent, const QString& name)
{
    auto* box = Look::named(new QPlainTextEdit(parent), name);
    box->setTabChangesFocus(true);
    return box;
}

QString pageText(const QPlainTextEdit* box) { return box->toPlainText().replace(QLatin1Char('\n'), Html::crlf); }

ColourField colour(QFormLayout* rows, const QString& textName, const QString& buttonName, const QString& swatchName,
                   const QString& label, const QString& text, const QString& caption)
{
    QWidget* parent = rows->parentWidget();
    ColourField f;
    f.text = field(parent, textName, text);
    f.swatch = new ColourSwatch(swatchName, parent);
    f.swatch->setBackColor(ColourText::toPlatformValue(text, 0));
    f.choose = Look::faceButton(buttonName, caption, parent);
    f.choose->setAutoDefault(false);
    auto* row = new QHBoxLayout;
    row->addWidget(f.text, 1);
    row->addWidget(f.swatch);
    row->addWidget(f.choose);
    rows->addRow(label, row);
    QLineEdit* field = f.text;
    ColourSwatch* swatch = f.swatch;
    QObject::connect(f.choose, &QPushButton::clicked, parent, Event([field, swatch] { chooseColourInto(field, swatch, true, OnCancel::ApplyHeld); }));
    return f;
}

FontField font(QFormLayout* rows, const QString& textName, const QString& buttonName, const QString& label,
               const QString& caption)
{
    QWidget* parent = rows->parentWidget();
    FontField f;
    f.text = field(parent, textName, QStringLiteral("Arial"));
    f.choose = withButton(rows, label, f.text, buttonName, caption);
    QLineEdit* field = f.text;
    QObject::connect(f.choose, &QPushButton::clicked, parent, Event([field] { chooseFontInto(field); }));
    return f;
}

LocationField location(QFormLayout* rows, const LocationNames& names, const QString& label,
                       const QString& findCaption, const QString& filter,
                       const std::function<void(const QString& path)>& found)
{
    QWidget* parent = rows->parentWidget();
    LocationField f;
    f.location = field(parent, names.location);
    f.full = field(parent, names.full);
    f.full->hide();
    f.find = withButton(rows, label, f.location, names.find, findCaption);
    f.shorten = Look::named(new QCheckBox(QStringLiteral("Shorten location length"), parent), names.shorten);
    rows->addRow(QString(), f.shorten);
    QLineEdit* shown = f.location;
    QLineEdit* full = f.full;
    QCheckBox* shorten = f.shorten;
    QObject::connect(f.find, &QPushButton::clicked, parent, Event([shown, full, shorten, filter, found] {
        const QString path = prompts().openFile(QString(), filter, QString());
        if (path.isEmpty())
            return;
        full->setText(path);
        shown->setText(shorten->isChecked() ? shortLocation(path) : path);
        if (found)
            found(path);
    }));
    QObject::connect(f.shorten, &QCheckBox::toggled, parent, Event([shown, full](bool ticked) {
        shown->setText(ticked ? shortLocation(full->text()) : full->text());
    }));
    return f;
}

QString shortLocation(const QString& fullPath)
{
    const QFileInfo file(fullPath);
    return !fullPath.isEmpty() && file.isFile() ? file.fileName() : QString();
}

void chooseFontInto(QLineEdit* field)
{
    const QFont held(field->text());
    field->setText(prompts().font(held).value_or(held).family());
}

QHBoxLayout* pair(QFormLayout* rows, const QString& firstLabel, QWidget* first, const QString& secondLabel, QWidget* second)
{
    QWidget* parent = rows->parentWidget();
    auto* label = new QLabel(firstLabel, parent);
    label->setBuddy(first);
    auto* secondName = new QLabel(secondLabel, parent);
    secondName->setBuddy(second);
    auto* row = new QHBoxLayout;
    row->addWidget(first, 1);
    row->addSpacing(8);
    row->addWidget(secondName);
    row->addWidget(second, 1);
    rows->addRow(label, row);
    return row;
}

QComboBox* list(QFormLayout* rows, const QString& name, const QString& label, const QStringList& items, const QString& text)
{
    auto* box = Look::named(new QComboBox(rows->parentWidget()), name);
    box->setEditable(true);
    // Enter runs the load button; what was typed is the value, not a new row of the list.
    box->setInsertPolicy(QComboBox::NoInsert);
    box->addItems(items);
    box->setCurrentText(text);
    rows->addRow(label, box);
    return box;
}

QComboBox* alignment(QFormLayout* rows, const QString& name, const QString& label)
{
    return list(rows, name, label, Html::alignments(), QStringLiteral("Center"));
}

UnitChoice unit(QFormLayout* rows, const QString& label, QWidget* field)
{
    QWidget* parent = rows->parentWidget();
    UnitChoice u;
    u.pixels = Look::named(new QRadioButton(QStringLiteral("Pixels"), parent), QStringLiteral("Option1"));
    u.percent = Look::named(new QRadioButton(QStringLiteral("%"), parent), QStringLiteral("Option2"));
    u.percent->setChecked(true);
    auto* row = new QHBoxLayout;
    if (field)
        row->addWidget(field, 1);
    row->addWidget(u.pixels);
    row->addWidget(u.percent);
    if (!field)
        row->addStretch();
    rows->addRow(label, row);
    return u;
}

TableStyle tableStyle(QFormLayout* rows, const QString& borderButton, const QString& backButton, const QString& caption)
{
    const CellTableText::Fields defaults;
    TableStyle t;
    t.txtWidth = line(rows, QStringLiteral("txtWidth"), QStringLiteral("Width :"), defaults.txtWidth);
    t.coAlign = alignment(rows, QStringLiteral("coAlign"), QStringLiteral("Alignment :"));
    t.txtbo = colour(rows, QStringLiteral("txtbo"), borderButton, QStringLiteral("borderSwatch"), QStringLiteral("Border Color :"),
                     defaults.txtbo, caption);
    t.txtba = colour(rows, QStringLiteral("txtba"), backButton, QStringLiteral("backSwatch"), QStringLiteral("Back Color :"),
                     defaults.txtba, caption);
    return t;
}

CellTableText::Fields TableStyle::fields() const
{
    CellTableText::Fields f;
    f.txtWidth = txtWidth->text();
    f.coAlign = coAlign->currentText();
    f.txtbo = txtbo.text->text();
    f.txtba = txtba.text->text();
    return f;
}

QComboBox* fontSize(QFormLayout* rows, const QString& name, const QString& label)
{
    return list(rows, name, label, Html::fontSizes(), QStringLiteral("3  (12pt)"));
}

}
