// Sustained typing in a split window, whose preview follows the text: the editor must keep up
// with the keys while the browser may lag behind. Each iteration types one key and lets the
// event loop run, as a user's key would.
#include "documents/frmsplit.h"
#include "platform/App.h"
#include "platform/Application.h"
#include "platform/CodeMax.h"
#include "platform/ScriptedPrompts.h"
#include "shell/Main.h"
#include "shell/frmMain.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
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
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    VelloroApplication::prepare();
    VelloroApplication app(argc, argv);
    QTemporaryDir folder;
    App::setPathForTesting(folder.path());
    QDir().mkpath(folder.filePath(QStringLiteral("Options")));
    // Settings without a first page or start screen.
    QFile details(folder.filePath(QStringLiteral("Options/Details.dat")));
    details.open(QIODevice::WriteOnly);
    details.write("0\r\n1\r\n0\r\n0\r\n\"Maximized\"\r\n\"c:\\Velloro\\\"\r\n\"65\"\r\n\"HTML\"\r\n255\r\n\"#FF0000\"\r\n"
                  "16711680\r\n\"#0000FF\"\r\n65280\r\n\"#00FF00\"\r\n\"Arial\"\r\n\"5\"\r\n\"MS Sans Serif\"\r\n\"8\"\r\n"
                  "\"Script\"\r\n\"12\"\r\n\"Comic Sans MS\"\r\n\"14\"\r\n\"Lucida Console\"\r\n\"18\"\r\n"
                  "\"Trebuchet MS\"\r\n\"24\"\r\n\".htm\"\r\n\".htm\"\r\n1\r\n");
    details.close();
    ScriptedPrompts::setFailureHandler([](const QString&) {});
    ScriptedPrompts prompts;
    Main();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
