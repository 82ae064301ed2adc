#include "wizards/CSSform.h"

#include "documents/DocumentWindow.h"
#include "platform/Look.h"
#include "platform/RichTextBox.h"
#include "services/Workspace.h"
#include "stylesheets/StyleSheetText.h"
#include "wizards/WizardRows.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

CSSform::CSSform(QWidget* parent) : WizardDialog(QStringLiteral("External Style Sheet's"), Refusal::None, parent)
{
    const auto location = WizardRows::location(rows(), {.find = QStringLiteral("Command1"), .shorten = QStringLiteral("Check1")},
                                               QStringLiteral("Location of Style Sheet :"), QStringLiteral("Browse"),
                                               QStringLiteral("Style Sheets (*.css *.CSS)"));
    Location = location.location;
    location1 = location.full;
    Command1 = location.find;
    Check1 = location.shorten;
    note = Look::named(new QLabel(QStringLiteral("Click the load button to put the neccessary code into the web page"), this),
                       QStringLiteral("note"));
    note->setWordWrap(true);
    rows()->addRow(note);
    Command2 = addLoadButton(QStringLiteral("Command2"));
    Command3 = addCloseButton(QStringLiteral("Command3"));
}

void CSSform::beforeDelivery() { ActiveDocument()->RichTextBox1()->find(QStringLiteral("<head>")); }

QString CSSform::fragment() const { return StyleSheetText::headLink(Location->text()); }

void CSSform::afterDelivery()
{
    Location->clear();
    location1->clear();
}
