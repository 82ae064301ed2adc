#include "common/TestSupport.h"

#include "app/Main.h"
#include "documents/frmDocument.h"
#include "documents/notepad.h"
#include "platform/App.h"
#include "platform/CodeMax.h"
#include "platform/Desktop.h"
#include "platform/Forms.h"
#include "platform/RichTextBox.h"
#include "shell/frmMain.h"

#include <QListWidget>
#include "shell/modMain.h"

#include <QCoreApplication>
#include <QTest>
#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QPixmap>
#include <QScreen>
#include <QThread>
#include <QUrl>

namespace {
void copyTree(const QString& from, const QString& to)
{
    QDirIterator it(from, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString src = it.next();
        const QString dst = to + src.mid(from.size());
        QDir().mkpath(QFileInfo(dst).absolutePath());
        QFile::copy(src, dst);
    }
}
}

TempAppFolder::TempAppFolder(bool copyData)
{
    if (copyData)
        copyTree(QStringLiteral(VELLORO_SOURCE_DATA), dir.path());
    App::setPathForTesting(dir.path());
}

QByteArray TempAppFolder::read(const QString& relative) const
{
    QFile f(file(relative));
    if (!f.open(QIODevice::ReadOnly))
        return {};
    return f.readAll();
}

void TempAppFolder::write(const QString& relative, const QByteArray& bytes) const
{
    QDir().mkpath(QFileInfo(file(relative)).absolutePath());
    QFile f(file(relative));
    if (f.open(QIODevice::WriteOnly | QIODevice::Truncate))
        f.write(bytes);
}

void WindowTest::startWithoutPage()
{
    folder.write(QStringLiteral("Options/Details.dat"),
                 "0\r\n1\r\n0\r\n0\r\n\"Maximized\"\r\n\"c:\\Velloro\\\"\r\n\"65\"\r\n\"HTML\"\r\n255\r\n"
                 "\"#FF0000\"\r\n16711680\r\n\"#0000FF\"\r\n65280\r\n\"#00FF00\"\r\n\"Arial\"\r\n\"5\"\r\n"
                 "\"MS Sans Serif\"\r\n\"8\"\r\n\"Script\"\r\n\"12\"\r\n\"Comic Sans MS\"\r\n\"14\"\r\n"
                 "\"Lucida Console\"\r\n\"18\"\r\n\"Trebuchet MS\"\r\n\"24\"\r\n\".htm,.html\"\r\n\".htm\"\r\n1\r\n");
    Main();
}

frmDocument* WindowTest::newPage(const QString& text)
{
    auto* doc = new frmDocument;
    frmMain::instance()->addDocument(doc);
    doc->CodeMax1()->setText(text);
    processEvents();
    return doc;
}

notepad* WindowTest::newPad(const QString& text)
{
    auto* pad = new notepad;
    pad->setCaption(QStringLiteral("Notepad [ 1 ]"));
    frmMain::instance()->addDocument(pad);
    pad->RichTextBox1()->setText(text);
    processEvents();
    return pad;
}

void WindowTest::TearDown()
{
    Forms::destroyAllForTesting();
    processEvents();
}

void WindowTest::processEvents()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

QStringList tabOrder(QWidget* window)
{
    window->show();
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window));
    for (QWidget* c = window->nextInFocusChain(); c != window; c = c->nextInFocusChain())
        if (c->isVisibleTo(window) && c->isEnabled() && (c->focusPolicy() & Qt::TabFocus) && !c->focusProxy()) {
            c->setFocus(Qt::TabFocusReason);
            break;
        }
    QStringList names;
    for (int i = 0; i < 40; ++i) {
        QWidget* at = QApplication::focusWidget();
        if (!at || at->window() != window || names.contains(at->objectName()))
            break;
        names << at->objectName();
        QTest::keyClick(at, Qt::Key_Tab);
    }
    return names;
}

QStringList rows(const QListWidget* list)
{
    QStringList r;
    for (int i = 0; i < list->count(); ++i)
        r << list->item(i)->text();
    return r;
}

std::string visible(const QString& s)
{
    QString v = s;
    v.replace(QLatin1String("\r"), QLatin1String("\\r")).replace(QLatin1String("\n"), QLatin1String("\\n\n"));
    return v.toStdString();
}

::testing::AssertionResult isBox(const ScriptedPrompts::Prompt& p, const QString& text, int style, const QString& title)
{
    if (p.text == text && (style < 0 || p.style == style) && (title.isNull() || p.title == title))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "the box is \"" << visible(p.text) << "\", style " << p.style << ", title \""
                                         << p.title.toStdString() << "\"; expected \"" << visible(text) << "\", style "
                                         << style << ", title \"" << title.toStdString() << "\"";
}

void saveShot(QWidget* w, const QString& name)
{
    const QString dir = qEnvironmentVariable("VELLORO_SHOT_DIR");
    if (dir.isEmpty())
        return;
    QDir().mkpath(dir);
    w->show();
    for (int i = 0; i < 10; ++i) {
        QCoreApplication::processEvents();
        QThread::msleep(30);
    }
    // A whole window is taken from the screen, which also has what the browser drew.
    QPixmap shot = w->isWindow() && w->screen() ? w->screen()->grabWindow(w->winId()) : w->grab();
    // A window the screen did not show yet (a dialog without a window manager) paints itself.
    const QImage image = shot.toImage();
    if (image.isNull() || image.colorCount() == 1 || image.convertToFormat(QImage::Format_Indexed8).colorCount() <= 1)
        shot = w->grab();
    shot.save(dir + QLatin1Char('/') + name + QStringLiteral(".png"));
}

void refuseDesktop()
{
    Desktop::setHandler({[](const QUrl& url) {
                             ADD_FAILURE() << "unexpected desktop open: " << url.toString().toStdString();
                             return false;
                         },
                         [](const QString& program, const QStringList&) {
                             ADD_FAILURE() << "unexpected program start: " << program.toStdString();
                             return false;
                         }});
}

DesktopRecorder::DesktopRecorder()
{
    Desktop::setHandler({[this](const QUrl& url) {
                             opened << (url.isLocalFile() ? url.toLocalFile() : url.toString());
                             return true;
                         },
                         [](const QString& program, const QStringList&) {
                             ADD_FAILURE() << "unexpected program start: " << program.toStdString();
                             return false;
                         }});
}

DesktopRecorder::~DesktopRecorder() { refuseDesktop(); }
