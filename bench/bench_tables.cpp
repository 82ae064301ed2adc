// Tables from big text files. The whole way, as a user meets it: a CSV file of 100,000 lines
// of 10 fields opened through the menu entry, timed from the click on the comma button to the
// table standing in the page's editor. And the builder alone on the inputs that must not stall
// it: one line of 200 MB, and 2 million short lines.
#include "ProgramBench.h"
#include "documents/frmDocument.h"
#include "platform/App.h"
#include "platform/Application.h"
#include "platform/CodeMax.h"
#include "platform/TextFiles.h"
#include "platform/Forms.h"
#include "platform/ScriptedPrompts.h"
#include "shell/frmMain.h"
#include "wizards/CSVWizard.h"
#include "wizards/CsvTableText.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <algorithm>
#include <benchmark/benchmark.h>


namespace {
QTemporaryDir* folder = nullptr;

// Resident memory from /proc: the current size, or the peak since the last reset.
qint64 residentKB(const char* field)
{
    QFile status(QStringLiteral("/proc/self/status"));
    status.open(QIODevice::ReadOnly);
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith(field))
            return line.mid(qstrlen(field)).trimmed().split(' ').value(0).toLongLong();
    return 0;
}
void resetPeak()
{
    QFile clear(QStringLiteral("/proc/self/clear_refs"));
    if (clear.open(QIODevice::WriteOnly))
        clear.write("5");
}
ScriptedPrompts* scriptedPrompts = nullptr;

QString csvFile(int lines, int fields)
{
    const QString path = folder->filePath(QStringLiteral("table-%1x%2.csv").arg(lines).arg(fields));
    if (QFile::exists(path))
        return path;
    QByteArray text;
    for (int l = 0; l < lines; ++l) {
        for (int f = 0; f < fields; ++f) {
            if (f)
                text += ',';
            text += "cell " + QByteArray::number(l) + '.' + QByteArray::number(f);
        }
        text += "\r\n";
    }
    QFile out(path);
    out.open(QIODevice::WriteOnly);
    out.write(text);
    return path;
}

// A file of `lines` lines, each the same piece: made once per run of the program.
QString repeatedFile(const QString& name, const QByteArray& piece, qsizetype count, const QByteArray& lineEnd)
{
    const QString path = folder->filePath(name);
    if (QFile::exists(path))
        return path;
    QFile out(path);
    out.open(QIODevice::WriteOnly);
    QByteArray chunk;
    for (int i = 0; i < 4096; ++i)
        chunk += piece + lineEnd;
    qsizetype written = 0;
    for (; written + 4096 <= count; written += 4096)
        out.write(chunk);
    for (; written < count; ++written)
        out.write(piece + lineEnd);
    return path;
}

// From the click on the comma button to the table in the editor of a page.
void fileToPage(benchmark::State& state, const QString& path)
{
    auto* page = new frmDocument;
    frmMain::instance()->addDocument(page);
    CodeMax* editor = page->CodeMax1();
    qint64 idleKB = 0, peakKB = 0;
    for (auto _ : state) {
        state.PauseTiming();
        editor->setText(QString());
        scriptedPrompts->answerOpenFile(path);
        frmMain::instance()->MenuClick(QStringLiteral("Insert .CSV File"));
        auto* wizard = loadedForm<CSVWizard>();
        QCoreApplication::processEvents();
        idleKB = residentKB("VmRSS:");
        resetPeak();
        state.ResumeTiming();
        wizard->Command2->click();
        // A big file is made a table on a worker thread; the click's work ends with its delivery.
        while (wizard->building())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        peakKB = std::max(peakKB, residentKB("VmHWM:") - idleKB);
        if (editor->length() == 0) {
            state.SkipWithError("no table in the editor");
            break;
        }
    }
    // The memory the click costs above the idle program, against the size of the file.
    const double fileMB = static_cast<double>(QFileInfo(path).size()) / 1e6;
    state.counters["file_MB"] = fileMB;
    state.counters["peak_above_idle_MB"] = static_cast<double>(peakKB) / 1e3;
    state.counters["peak_per_file_size"] = static_cast<double>(peakKB) / 1e3 / fileMB;
    state.counters["editor_MB"] = static_cast<double>(editor->length()) / 1e6;
    page->Changedvalue()->setText(QString());
    page->close();
    QCoreApplication::processEvents();
}

void hundredThousandLines(benchmark::State& state) { fileToPage(state, csvFile(100000, 10)); }
BENCHMARK(hundredThousandLines)->Iterations(3)->Unit(benchmark::kMillisecond)->UseRealTime();

// The same file in two halves: the table built from the file alone, and the built table put
// into the editor alone; each with its own peak above idle.
void hundredThousandLinesParts(benchmark::State& state)
{
    const QString path = csvFile(100000, 10);
    auto* page = new frmDocument;
    frmMain::instance()->addDocument(page);
    CodeMax* editor = page->CodeMax1();
    qint64 buildKB = 0, insertKB = 0;
    for (auto _ : state) {
        editor->setText(QString());
        QCoreApplication::processEvents();
        qint64 idle = residentKB("VmRSS:");
        resetPeak();
        QFile file(path);
        file.open(QIODevice::ReadOnly);
        TextPieces table = CsvTableText::pieces({}, TextFiles::toEditorText(file.readAll()), CsvTableText::comma);
        buildKB = std::max(buildKB, residentKB("VmHWM:") - idle);
        idle = residentKB("VmRSS:");
        resetPeak();
        editor->setSelPieces(std::move(table));
        insertKB = std::max(insertKB, residentKB("VmHWM:") - idle);
    }
    state.counters["table_MB"] = static_cast<double>(editor->length()) / 1e6;
    state.counters["build_peak_MB"] = static_cast<double>(buildKB) / 1e3;
    state.counters["insert_peak_MB"] = static_cast<double>(insertKB) / 1e3;
    page->Changedvalue()->setText(QString());
    page->close();
    QCoreApplication::processEvents();
}
BENCHMARK(hundredThousandLinesParts)->Iterations(2)->Unit(benchmark::kMillisecond)->UseRealTime();

void twoMillionLinesToPage(benchmark::State& state)
{
    fileToPage(state, repeatedFile(QStringLiteral("short.csv"), "a,b,c", 2'000'000, "\r\n"));
}
BENCHMARK(twoMillionLinesToPage)->Iterations(1)->Unit(benchmark::kMillisecond)->UseRealTime();

void longLineToPage(benchmark::State& state)
{
    // 200 MB in one line: 16,666,666 fields of "field value" and a comma.
    fileToPage(state, repeatedFile(QStringLiteral("long.csv"), "field value,", 16'666'666, QByteArray()));
}
BENCHMARK(longLineToPage)->Iterations(1)->Unit(benchmark::kMillisecond)->UseRealTime();

void builder(benchmark::State& state, const QByteArray& text)
{
    qsizetype size = 0;
    for (auto _ : state) {
        const TextPieces table = CsvTableText::pieces({}, text, CsvTableText::comma);
        size = table.totalSize();
        benchmark::DoNotOptimize(table);
    }
    state.counters["input_MB"] = static_cast<double>(text.size()) / 1e6;
    state.counters["output_MB"] = static_cast<double>(size) / 1e6;
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * text.size());
}

void oneLongLine(benchmark::State& state)
{
    QByteArray text;
    text.reserve(200'000'000);
    const QByteArray field = "field value,";
    while (text.size() + field.size() <= 200'000'000)
        text += field;
    builder(state, text);
}
BENCHMARK(oneLongLine)->Iterations(2)->Unit(benchmark::kMillisecond)->UseRealTime();

void manyShortLines(benchmark::State& state)
{
    QByteArray text;
    text.reserve(2'000'000 * 8);
    for (int i = 0; i < 2'000'000; ++i)
        text += "a,b,c\r\n";
    builder(state, text);
}
BENCHMARK(manyShortLines)->Iterations(3)->Unit(benchmark::kMillisecond)->UseRealTime();
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    VelloroApplication app(argc, argv);
    QTemporaryDir dir;
    folder = &dir;
    ScriptedPrompts scripted;
    scriptedPrompts = &scripted;
    ProgramBench::start(dir);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
