#include "wizards/dropmenu1.h"

#include "colour/ColourSwatch.h"
#include "platform/Look.h"
#include "wizards/WizardRows.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

dropmenu1::dropmenu1(QWidget* parent)
    : DropMenuForm(QStringLiteral("Hyperlink Drop down menu ::"), QString(), QString(), parent)
{
    const DropMenuText::Jump::Fields defaults;
    Text6 = WizardRows::field(this, QStringLiteral("Text6"), defaults.Text6);
    Text6->hide();
    menutext = WizardRows::line(rows(), QStringLiteral("menutext"), QStringLiteral("Drop Menu Text :"), defaults.menutext);
    buttonname = WizardRows::line(rows(), QStringLiteral("buttonname"), QStringLiteral("Button Text :"), defaults.buttonname);
    addSelectRows();
    const auto font = WizardRows::font(rows(), QStringLiteral("Text7"), QStringLiteral("Command5"), QStringLiteral("Font :"),
                                       QStringLiteral("Choose"));
    Text7 = font.text;
    Command5 = font.choose;
    // The size is asked for and never written.
    Text10 = WizardRows::line(rows(), QStringLiteral("Text10"), QStringLiteral("Size :"), QStringLiteral("12"));
    const auto back = WizardRows::colour(rows(), QStringLiteral("backc"), QStringLiteral("Command3"), QStringLiteral("Shape1"),
                                         QStringLiteral("Background :"), defaults.backc);
    backc = back.text;
    Shape1 = back.swatch;
    Command3 = back.choose;
    const auto fore = WizardRows::colour(rows(), QStringLiteral("backc1"), QStringLiteral("Command4"), QStringLiteral("Shape2"),
                                         QStringLiteral("Text Colour :"), defaults.backc1);
    backc1 = fore.text;
    Shape2 = fore.swatch;
    Command4 = fore.choose;

    Label14 = Look::named(new QLabel(QStringLiteral("Javascript Error :"), this), QStringLiteral("Label14"));
    Label13 = Look::named(new QLabel(QStringLiteral("On a javascript error of the preview of the page, this will mean that at "
                                                    "the moment the drop down menu is only availble for 1 menu per page, this "
                                                    "error comes from there being two or more parts of the script, should be "
                                                    "changed for multiple menus soon."),
                                     this),
                          QStringLiteral("Label13"));
    Label13->setWordWrap(true);
    rows()->addRow(Label14, Label13);
    addButtons();
}

DropMenuText::Jump::Fields dropmenu1::fields() const
{
    DropMenuText::Jump::Fields f;
    f.Text6 = Text6->text();
    f.menutext = menutext->text();
    f.buttonname = buttonname->text();
    f.Text3 = Text3->text();
    f.Combo2 = Combo2->currentText();
    f.Text5 = Text5->text();
    f.Text7 = Text7->text();
    f.backc = backc->text();
    f.backc1 = backc1->text();
    f.List1 = texts();
    f.List2 = links();
    return f;
}

void dropmenu1::beforeDelivery() { Text4->setText(DropMenuText::Jump::menu(fields())); }

QString dropmenu1::fragment() const { return DropMenuText::Jump::fragment(fields()); }
