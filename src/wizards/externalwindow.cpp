#include "wizards/externalwindow.h"

#include "platform/Look.h"
#include "platform/Prompts.h"
#include "wizards/WizardRows.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

externalwindow::externalwindow(QWidget* parent) : WizardDialog(QStringLiteral("External Window"), Refusal::None, parent)
{
    const ExternalWindowText::Fields defaults;
    const auto location = WizardRows::location(rows(), {.find = QStringLiteral("Command3"), .shorten = QStringLiteral("Check1")},
                                               QStringLiteral("Link (Html File)"), QStringLiteral("Find"),
                                               QStringLiteral("Files (*.html *.asp *.txt *.htm)"));
    Location = location.location;
    location1 = location.full;
    Command3 = location.find;
    Check1 = location.shorten;
    Text1 = WizardRows::line(rows(), QStringLiteral("Text1"), QStringLiteral("Width"), defaults.Text1);
    Text2 = WizardRows::line(rows(), QStringLiteral("Text2"), QStringLiteral("Height"), defaults.Text2);
    Text3 = WizardRows::line(rows(), QStringLiteral("Text3"), QStringLiteral("Link Text"), defaults.Text3);
    Label5 = Look::named(new QLabel(QStringLiteral("Note: The link must be direct, ie page.html , it cannot contain \\ ' , in the link"),
                                    this),
                         QStringLiteral("Label5"));
    Label5->setWordWrap(true);
    rows()->addRow(Label5);
    Command1 = addLoadButton(QStringLiteral("Command1"));
    Command2 = addCloseButton(QStringLiteral("Command2"));
}

ExternalWindowText::Fields externalwindow::fields() const
{
    ExternalWindowText::Fields f;
    f.Location = Location->text();
    f.Text1 = Text1->text();
    f.Text2 = Text2->text();
    f.Text3 = Text3->text();
    return f;
}

// A missing size is told, and the script still goes in with that place empty.
bool externalwindow::checkFields()
{
    if (Text1->text().isEmpty() || Text2->text().isEmpty())
        MsgBox(QStringLiteral("Theres either a width or a height missing, recheck!"), Style::Critical);
    return true;
}
