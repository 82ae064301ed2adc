#include "wizards/CSVWizard.h"

#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "wizards/CsvTableText.h"

#include <QDynamicPropertyChangeEvent>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {
const char* const sourceProperty = "sourceFile";
const QString csvFilter = QStringLiteral("CSV Files (*.csv *.CSV)");
const QString tabFilter = QStringLiteral("Tab Delinited Files (*.txt *.TXT)");
}

CSVWizard::CSVWizard(QWidget* parent) : WizardDialog(QStringLiteral("Table Wizard"), Refusal::None, parent)
{
    Label1 = Look::named(
        new QLabel(QStringLiteral("You can insert two types of files into tables, either Comma-seperated , or tabbed Delinited "
                                  "text. Click find and locate the file. Then set the tables options. then click the active "
                                  "button at the bottom. (Note which ever menu item you clicked on will be the format)"),
                   this),
        QStringLiteral("Label1"));
    Label1->setWordWrap(true);
    rows()->addRow(Label1);

    txtlocation = Look::named(new QLineEdit(this), QStringLiteral("txtlocation"));
    Command1 = WizardRows::withButton(rows(), QStringLiteral("Location of File"), txtlocation, QStringLiteral("Command1"),
                                      QStringLiteral("Find"));
    connect(Command1, &QPushButton::clicked, this, Event([this] {
        const QString path = prompts().openFile(QString(), csvFilter + QStringLiteral(";;") + tabFilter, QString());
        if (!path.isEmpty())
            txtlocation->setText(path);
    }));

    style = WizardRows::tableStyle(rows(), QStringLiteral("Command6"), QStringLiteral("Command4"), QStringLiteral("Choose"));
    txtWidth = style.txtWidth;
    coAlign = style.coAlign;
    txtbo = style.txtbo.text;
    txtba = style.txtba.text;
    Command6 = style.txtbo.choose;
    Command4 = style.txtba.choose;

    // The two action buttons, in the button face colour like all of ours.
    Command2 = addButton(QStringLiteral("Command2"), QStringLiteral("Comma Separated"));
    Command3 = addButton(QStringLiteral("Command3"), QStringLiteral("Tab Delimited"));
    connect(Command2, &QPushButton::clicked, this, Event([this] { insertWith(CsvTableText::comma); }));
    connect(Command3, &QPushButton::clicked, this, Event([this] { insertWith(CsvTableText::tab); }));
    addCloseButton(QStringLiteral("closeButton"));
}

void CSVWizard::insertWith(QChar sep)
{
    separator = sep;
    Insert();
}

QString CSVWizard::fragment() const
{
    // Only a plain file: a device or a pipe named here would never end.
    const QString path = txtlocation->text();
    if (path.isEmpty() || !QFileInfo(path).isFile())
        throw RuntimeError::fileNotFound();
    bool ok = false;
    QByteArray bytes = TextFiles::readBytes(path, &ok);
    if (!ok)
        throw RuntimeError::pathFileAccess();
    QString text = TextFiles::decode(bytes);
    bytes = QByteArray();
    return CsvTableText::fragment(style.fields(), text, separator);
}

bool CSVWizard::takeSourceFile()
{
    const QString path = property(sourceProperty).toString();
    if (path.isEmpty())
        return false;
    setProperty(sourceProperty, QVariant());
    txtlocation->setText(path);
    // The file chooser of each menu entry shows only its own kind of file.
    const bool csv = path.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
    setActive(csv, !csv);
    return true;
}

void CSVWizard::setActive(bool comma, bool tab)
{
    Command2->setEnabled(comma);
    Command3->setEnabled(tab);
    // Enter presses the active button.
    Command2->setDefault(comma);
    Command3->setDefault(!comma && tab);
}

bool CSVWizard::event(QEvent* e)
{
    // A file handed over while the form is already on the screen.
    if (e->type() == QEvent::DynamicPropertyChange && isVisible()
        && static_cast<QDynamicPropertyChangeEvent*>(e)->propertyName() == sourceProperty)
        takeSourceFile();
    return WizardDialog::event(e);
}

void CSVWizard::showEvent(QShowEvent* e)
{
    // Each opening starts with an empty location, unless the menu handed over a file. (Not on
    // every activation: the file chooser's closing activates the form again.)
    WizardDialog::showEvent(e);
    txtlocation->clear();
    if (!takeSourceFile())
        setActive(true, true);
}
