#include "documents/DocumentWindow.h"

#include "platform/CodeMax.h"
#include "platform/Prompts.h"
#include "platform/RuntimeError.h"
#include "services/Commands.h"
#include "services/Workspace.h"

#include <QCloseEvent>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>

DocumentWindow::DocumentWindow(QWidget* parent) : QWidget(parent)
{
    tempaddressBox = new QLineEdit(this);
    tempaddressBox->setObjectName(QStringLiteral("tempaddress"));
    tempaddressBox->hide();
    Forms::add(this);
}

void DocumentWindow::lacks(const char* member) const
{
    throw RuntimeError::noSuchMember(QString::fromLatin1(member), objectName());
}

CodeMax* DocumentWindow::CodeMax1() { lacks("CodeMax1"); }
RichTextBox* DocumentWindow::RichTextBox1() { lacks("RichTextBox1"); }
QLabel* DocumentWindow::Changedvalue() { lacks("Changedvalue"); }
QComboBox* DocumentWindow::SYNTAXTYPE() { lacks("SYNTAXTYPE"); }
QPlainTextEdit* DocumentWindow::tempbox() { lacks("tempbox"); }
WebBrowser* DocumentWindow::WebBrowser1() { lacks("WebBrowser1"); }
QLabel* DocumentWindow::linkpreview() { lacks("linkpreview"); }
void DocumentWindow::startspell() { lacks("startspell"); }

QMdiSubWindow* DocumentWindow::subWindow() const
{
    return qobject_cast<QMdiSubWindow*>(parentWidget());
}

void DocumentWindow::setWindowState(int state)
{
    QWidget* w = subWindow() ? static_cast<QWidget*>(subWindow()) : this;
    switch (state) {
    case 2: w->showMaximized(); break;
    case 1: w->showMinimized(); break;
    default: w->showNormal(); break;
    }
}

int DocumentWindow::WindowState() const
{
    const QWidget* w = subWindow() ? static_cast<const QWidget*>(subWindow()) : this;
    if (w->isMaximized())
        return 2;
    if (w->isMinimized())
        return 1;
    return 0;
}

QString DocumentWindow::documentName() const
{
    return tempaddressBox->text().isEmpty() ? Caption() : tempaddressBox->text();
}

void DocumentWindow::Form_Activate()
{
    workspace().setDocumentCaption(documentName());
}

void DocumentWindow::saveForClose(const QString& path) { CodeMax1()->SaveFile(path, true); }

bool DocumentWindow::QueryUnload()
{
    if (!previewSuffix().isEmpty() && !tempaddressBox->text().isEmpty())
        QFile::remove(tempaddressBox->text() + previewSuffix());
    if (tracksChanges() && Changedvalue()->text() != QLatin1String("Changed"))
        return true;
    const int answer = MsgBox(QStringLiteral("Would you like to save the page?"), Style::YesNoCancel | Style::Exclamation, QStringLiteral(":: Velloro 2002 ::"));
    if (answer == Answer::Cancel)
        return false;
    if (answer != Answer::Yes)
        return true;
    DocumentWindow* active = ActiveForm();
    const QString path = active ? active->tempaddress()->text() : QString();
    if (path.isEmpty()) {
        showForm(QStringLiteral("Saveas"));
        return false;
    }
    saveForClose(path);
    MsgBox(QStringLiteral("Page Saved as :: ") + path, Style::Information, QStringLiteral(":: Page Saved ::"));
    return true;
}

bool DocumentWindow::Unload()
{
    if (QMdiSubWindow* sub = subWindow())
        return sub->close();
    return close();
}

void DocumentWindow::closeEvent(QCloseEvent* e)
{
    if (unloading) {
        e->accept();
        return;
    }
    bool go = false;
    try {
        go = QueryUnload();
    } catch (const RuntimeError& err) {
        // The window stays, with its text: the failure is shown as the program shows any.
        e->ignore();
        MsgBox(runtimeErrorText(err), Style::Critical);
        return;
    }
    if (!go) {
        e->ignore();
        return;
    }
    unloading = true;
    Forms::remove(this);
    e->accept();
}
