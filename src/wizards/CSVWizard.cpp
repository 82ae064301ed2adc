#include "wizards/CSVWizard.h"

#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "services/Workspace.h"
#include "wizards/CsvTableText.h"

#include <QDynamicPropertyChangeEvent>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QThread>
#include <atomic>

namespace {
const char* const sourceProperty = "sourceFile";
const QString csvFilter = QStringLiteral("CSV Files (*.csv *.CSV)");
const QString tabFilter = QStringLiteral("Tab Delinited Files (*.txt *.TXT)");

// The table of the file: run-time error 53 for no plain file (a device or a pipe named here
// would never end), 75 for one that cannot be read; empty when the progress step stopped it.
// The table in the editor's own form, UTF-8, made from the file read as the editor reads files:
// a big file is then held once as bytes and once as its table, never as UTF-16.
TextPieces tableOf(const QString& path, const CellTableText::Fields& fields, char separator,
                   const CsvTableText::Progress& progress = {})
{
    if (path.isEmpty() || !QFileInfo(path).isFile())
        throw RuntimeError::fileNotFound();
    bool ok = false;
    QByteArray bytes = TextFiles::readBytes(path, &ok);
    if (!ok)
        throw RuntimeError::pathFileAccess();
    const QByteArray text = TextFiles::toEditorText(std::move(bytes));
    return CsvTableText::pieces(fields, text, separator, progress);
}

QString progressText(const QString& path, int percent)
{
    return QStringLiteral("Making a table of %1 ... %2 %  (closing the Table Wizard stops it)")
        .arg(QFileInfo(path).fileName())
        .arg(percent);
}
}

// What the worker thread and the window share: the stop request and the outcome.
struct CSVWizard::Build {
    std::atomic<bool> stop = false;
    TextPieces table;
    std::shared_ptr<RuntimeError> failure;
};

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

CSVWizard::~CSVWizard() { stopBuild(); }

void CSVWizard::insertWith(char sep)
{
    separator = sep;
    const QString path = txtlocation->text();
    const QFileInfo file(path);
    if (!path.isEmpty() && file.isFile() && file.size() >= backgroundFrom)
        buildInBackground(path);
    else
        Insert();
}

std::optional<TextPieces> CSVWizard::takeUtf8Pieces()
{
    if (preparedFailure)
        throw *preparedFailure;
    if (prepared)
        return std::exchange(prepared, std::nullopt);
    return tableOf(txtlocation->text(), style.fields(), separator);
}

void CSVWizard::buildInBackground(const QString& path)
{
    if (worker)
        return;
    job = std::make_shared<Build>();
    auto build = job;
    const CellTableText::Fields fields = style.fields();
    const char sep = separator;
    // The window outlives the worker: its destructor stops and waits for it.
    worker = QThread::create([build, path, fields, sep, this] {
        int shown = -1;
        const auto progress = [&](int percent) {
            if (percent != shown) {
                shown = percent;
                // A word that arrives after the build has ended says nothing.
                QMetaObject::invokeMethod(this, [this, build, path, percent] {
                    if (job == build)
                        setStatusText(1, progressText(path, percent));
                },
                                          Qt::QueuedConnection);
            }
            return !build->stop.load();
        };
        try {
            build->table = tableOf(path, fields, sep, progress);
        } catch (const RuntimeError& e) {
            build->failure = std::make_shared<RuntimeError>(e);
        }
    });
    connect(worker, &QThread::finished, this, &CSVWizard::buildFinished);
    activeBefore = {Command2->isEnabled(), Command3->isEnabled()};
    for (QPushButton* b : {Command1, Command2, Command3})
        b->setEnabled(false);
    setStatusText(1, progressText(path, 0));
    worker->start();
}

void CSVWizard::buildFinished()
{
    if (!worker)
        return;
    worker->wait();
    worker->deleteLater();
    worker = nullptr;
    const std::shared_ptr<Build> build = std::exchange(job, nullptr);
    Command1->setEnabled(true);
    setActive(activeBefore.first, activeBefore.second);
    if (build->stop) {
        setStatusText(1, QStringLiteral("The table was not made: the Table Wizard was closed."));
        return;
    }
    setStatusText(1, QString());
    prepared = std::move(build->table);
    preparedFailure = build->failure;
    Insert();
    prepared.reset();
    preparedFailure.reset();
}

void CSVWizard::stopBuild()
{
    if (!worker)
        return;
    job->stop = true;
    // The walk looks at the stop request every few thousand cells, so this wait is short.
    worker->wait();
    buildFinished();
}

void CSVWizard::hideEvent(QHideEvent* e)
{
    stopBuild();
    WizardDialog::hideEvent(e);
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
