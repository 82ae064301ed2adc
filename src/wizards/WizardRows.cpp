#include "wizards/WizardRows.h"

#include "colour/ColourSwatch.h"
#include "colour/ColourText.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "wizards/Html.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

namespace WizardRows {

QLineEdit* line(QFormLayout* rows, const QString& name, const QString& label, const QString& text)
{
    auto* edit = Look::named(new QLineEdit(text, rows->parentWidget()), name);
    rows->addRow(label, edit);
    return edit;
}

ColourField colour(QFormLayout* rows, const QString& textName, const QString& buttonName, const QString& swatchName,
                   const QString& label, const QString& text)
{
    QWidget* parent = rows->parentWidget();
    ColourField f;
    f.text = Look::named(new QLineEdit(text, parent), textName);
    f.swatch = new ColourSwatch(swatchName, parent);
    f.swatch->setBackColor(ColourText::toPlatformValue(text, 0));
    f.choose = Look::faceButton(buttonName, QStringLiteral("Choose"), parent);
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
    f.text = Look::named(new QLineEdit(QStringLiteral("Arial"), parent), textName);
    f.choose = Look::faceButton(buttonName, caption, parent);
    f.choose->setAutoDefault(false);
    auto* row = new QHBoxLayout;
    row->addWidget(f.text, 1);
    row->addWidget(f.choose);
    rows->addRow(label, row);
    QLineEdit* field = f.text;
    QObject::connect(f.choose, &QPushButton::clicked, parent, Event([field] { chooseFontInto(field); }));
    return f;
}

void chooseFontInto(QLineEdit* field)
{
    const QFont held(field->text());
    field->setText(prompts().font(held).value_or(held).family());
}

QComboBox* list(QFormLayout* rows, const QString& name, const QString& label, const QStringList& items, const QString& text)
{
    auto* box = Look::named(new QComboBox(rows->parentWidget()), name);
    box->setEditable(true);
    box->addItems(items);
    box->setCurrentText(text);
    rows->addRow(label, box);
    return box;
}

QComboBox* alignment(QFormLayout* rows, const QString& name, const QString& label)
{
    return list(rows, name, label, Html::alignments(), QStringLiteral("Center"));
}

QComboBox* fontSize(QFormLayout* rows, const QString& name, const QString& label)
{
    return list(rows, name, label, Html::fontSizes(), QStringLiteral("3  (12pt)"));
}

}
