// Sustained typing in a split window, whose preview follows the text: the editor must keep up
// with the keys while the browser may lag behind. Each iteration types one key and lets the
// event loop run, as a user's key would. And a big page opened, jumped to its end and typed in.
#include "ProgramBench.h"
#include "AnchorPages.h"
#include "documents/OpenSave.h"
#include "documents/frmsplit.h"
#include "platform/App.h"
#include "platform/Application.h"
#include "platform/CodeMax.h"
#include "platform/ScriptedPrompts.h"
#include "shell/modMain.h"
#include "shell/frmMain.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QTemporaryDir>
#include <QTimer>
#include <QEventLoop>
#include <QKeyEvent>
#include <QTest>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <vector>

namespace {
frmsplit* openSplit(int pageKiB)
{
    auto* split = new frmsplit;
    split->setCaption(QStringLiteral("HTML Split [ 1 ]"));
    frmMain::instance()->addDocument(split);
    split->setWindowState(2);
    QString page = QStringLiteral("<html>\r\n<body>\r\n");
    while (page.size() < pageKiB * 1024)
        page += QStringLiteral("<p>Some <b>text</b> of a paragraph, with <a href=\"x.htm\">a link</a>.</p>\r\n");
    page += QStringLiteral("</body>\r\n</html>");
    split->CodeMax1()->setText(page);
    split->CodeMax1()->setCursorPosition(2, 0);
    return split;
}

void typing(benchmark::State& state)
{
    frmsplit* split = openSplit(static_cast<int>(state.range(0)));
    CodeMax* editor = split->CodeMax1();
    editor->setFocus();
    const QString keys = QStringLiteral("the quick brown fox jumps over the lazy dog ");
    std::vector<double> latencies;
    int i = 0;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        QTest::keyClick(editor, keys[i++ % keys.size()].toLatin1());
        QCoreApplication::processEvents();
        latencies.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    std::sort(latencies.begin(), latencies.end());
    state.counters["keys_per_s"] = benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
    state.counters["p99_ms"] = latencies[latencies.size() * 99 / 100];
    state.counters["max_ms"] = latencies.back();
    split->flushPreview();
    split->Changedvalue()->setText(QString());
    split->close();
}
BENCHMARK(typing)->Arg(4)->Arg(512)->Arg(5 * 1024)->Iterations(1500)->Unit(benchmark::kMicrosecond)->UseRealTime();

double since(std::chrono::steady_clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

// Keys posted to the editor while its event loop runs free, as a user's keys arrive in the
// middle of whatever the editor is doing: each timed from its arrival to the end of the first
// paint of the editor's screen after the editor has taken it.
class KeysToScreen : public QObject {
public:
    explicit KeysToScreen(CodeMax* editor) : editor(editor)
    {
        editor->installEventFilter(this);
        editor->viewport()->installEventFilter(this);
    }
    ~KeysToScreen() override
    {
        editor->removeEventFilter(this);
        editor->viewport()->removeEventFilter(this);
    }
    // Posts the keys one after the other, the next some time after the last one showed.
    std::vector<double> type(int key, Qt::KeyboardModifiers modifiers, int count, int pauseMs)
    {
        std::vector<double> latencies;
        QEventLoop loop;
        QTimer next;
        next.setSingleShot(true);
        QObject::connect(&next, &QTimer::timeout, &loop, [&] {
            posted = std::chrono::steady_clock::now();
            waiting = true;
            QCoreApplication::postEvent(editor, new QKeyEvent(QEvent::KeyPress, key, modifiers, key < 128 ? QString(QChar(key)) : QString()));
            QCoreApplication::postEvent(editor, new QKeyEvent(QEvent::KeyRelease, key, modifiers));
        });
        shown = [&](double ms) {
            latencies.push_back(ms);
            if (static_cast<int>(latencies.size()) == count)
                loop.quit();
            else
                next.start(pauseMs);
        };
        QTimer::singleShot(30000, &loop, &QEventLoop::quit);  // a screen that never paints ends the run
        next.start(0);
        loop.exec();
        return latencies;
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == editor && event->type() == QEvent::KeyPress && waiting)
            taken = true;
        if (watched == editor->viewport() && event->type() == QEvent::Paint && taken) {
            // Paints now, inside the same paint, to know when it is done.
            watched->removeEventFilter(this);
            QCoreApplication::sendEvent(watched, event);
            watched->installEventFilter(this);
            waiting = taken = false;
            shown(since(posted));
            return true;
        }
        return false;
    }

private:
    CodeMax* editor;
    std::chrono::steady_clock::time_point posted;
    bool waiting = false, taken = false;
    std::function<void(double)> shown;
};

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v.empty() ? 0 : v[v.size() / 2];
}

// A big page opened from the file panel as a user opens it, in a maximised window: how long
// until its first screen shows coloured, how long Ctrl+End takes to show the end, and how long
// each key typed there takes to show while the rest of the page is still being coloured.
void bigPage(benchmark::State& state)
{
    const QString path = anchorPagePath(static_cast<int>(state.range(0)));
    if (path.isEmpty()) {
        state.SkipWithError("no page: gen_html.py not found (set ANCHORS)");
        return;
    }
    frmMain::instance()->resize(1280, 1000);
    std::vector<double> firstScreen, ctrlEnd, keys;
    int keysWhileColouring = 0;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        OpenAsPage(path);
        DocumentWindow* doc = frmMain::instance()->ActiveForm();
        doc->setWindowState(2);
        CodeMax* editor = doc->CodeMax1();
        editor->setFocus();
        const long firstLine = editor->SendScintilla(QsciScintillaBase::SCI_GETFIRSTVISIBLELINE);
        const long screen = editor->SendScintilla(QsciScintillaBase::SCI_LINESONSCREEN);
        const long screenEnd = editor->SendScintilla(QsciScintillaBase::SCI_POSITIONFROMLINE, firstLine + screen);
        while (editor->SendScintilla(QsciScintillaBase::SCI_GETENDSTYLED) < screenEnd)
            QCoreApplication::processEvents();
        editor->viewport()->repaint();
        firstScreen.push_back(since(start));

        KeysToScreen user(editor);
        for (double ms : user.type(Qt::Key_End, Qt::ControlModifier, 1, 0))
            ctrlEnd.push_back(ms);
        // Keys a little faster than a quick typist's, until 40 have shown; those typed before
        // the page is coloured to its end are the ones this is about.
        for (int i = 0; i < 40; ++i) {
            const bool colouring = editor->SendScintilla(QsciScintillaBase::SCI_GETENDSTYLED)
                                   < editor->SendScintilla(QsciScintillaBase::SCI_GETLENGTH);
            const std::vector<double> one = user.type('x', Qt::NoModifier, 1, 0);
            keysWhileColouring += colouring;
            if (colouring)
                keys.insert(keys.end(), one.begin(), one.end());
            QTest::qWait(60);
        }
        doc->Changedvalue()->setText(QString());
        doc->close();
        QCoreApplication::processEvents();
    }
    state.counters["first_screen_ms"] = median(firstScreen);
    state.counters["ctrl_end_ms"] = median(ctrlEnd);
    state.counters["key_median_ms"] = median(keys);
    state.counters["key_max_ms"] = keys.empty() ? 0 : *std::max_element(keys.begin(), keys.end());
    state.counters["keys_while_colouring"] = keysWhileColouring;
}
BENCHMARK(bigPage)->Arg(50)->Iterations(3)->Unit(benchmark::kMillisecond)->UseRealTime();
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    VelloroApplication app(argc, argv);
    QTemporaryDir folder;
    ScriptedPrompts prompts;
    ProgramBench::start(folder);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
