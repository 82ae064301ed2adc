// Opening a big page must not stall the window: time loading and colouring HTML pages of 5 and
// 50 MB, a 5 MB script in a record-defined language, and colouring only the first screen of the
// 50 MB page, which is what showing it needs.
#include "AnchorPages.h"
#include "documents/SyntaxLanguages.h"
#include "platform/CodeMax.h"

#include <QElapsedTimer>
#include <QCoreApplication>
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFile>
#include <QHash>

namespace {
QString htmlPage(int megabytes)
{
    static QHash<int, QString> pages;
    if (pages.contains(megabytes))
        return pages.value(megabytes);
    QFile f(anchorPagePath(megabytes));
    if (!f.open(QIODevice::ReadOnly))
        return {};
    return pages.insert(megabytes, QString::fromLatin1(f.readAll())).value();
}

// A script of about the given size: functions with strings, escapes, comments, numbers and
// operators, every one a little different.
QString scriptText(int megabytes)
{
    static QHash<int, QString> scripts;
    if (scripts.contains(megabytes))
        return scripts.value(megabytes);
    const qsizetype target = qsizetype(megabytes) * 1024 * 1024;
    QString s;
    s.reserve(target + 1024);
    for (int n = 0; s.size() < target; ++n) {
        s += QStringLiteral(
                 "// Section %1: helpers for the gallery page\r\n"
                 "function swapImage%1(id, src) {\r\n"
                 "  var img = document.getElementById(id); /* may be missing\r\n"
                 "     when the page is still loading */\r\n"
                 "  if (img != null && img.src !== src) { img.src = src; }\r\n"
                 "  var s = \"quoted \\\"text\\\" \" + 'single\\'s' + %1 * 42.5;\r\n"
                 "  for (var i = 0; i < s.length; i++) { total += s.charCodeAt(i) >>> 1; }\r\n"
                 "  return Math.max(a, b) >= 0.5 ? s.substring(2, 4) : s.toUpperCase();\r\n"
                 "}\r\n")
                 .arg(n);
    }
    return scripts.insert(megabytes, s).value();
}

void colourAll(CodeMax& editor) { editor.SendScintilla(QsciScintillaBase::SCI_COLOURISE, 0UL, -1L); }

void loadAndColour(benchmark::State& state, const char* language, const QString& text)
{
    if (text.isEmpty()) {
        state.SkipWithError("no page: gen_html.py not found (set ANCHORS)");
        return;
    }
    for (auto _ : state) {
        CodeMax editor;
        editor.setLanguage(QString::fromLatin1(language));
        editor.setText(text);
        colourAll(editor);
        benchmark::DoNotOptimize(editor.SendScintilla(QsciScintillaBase::SCI_GETENDSTYLED));
    }
    state.SetBytesProcessed(state.iterations() * text.size());
}
}

static void BM_LoadAndColourHtml(benchmark::State& state)
{
    loadAndColour(state, "HTML", htmlPage(static_cast<int>(state.range(0))));
}
BENCHMARK(BM_LoadAndColourHtml)->Arg(5)->Arg(50)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();

static void BM_LoadHtmlWithoutColouring(benchmark::State& state)
{
    const QString text = htmlPage(static_cast<int>(state.range(0)));
    if (text.isEmpty()) {
        state.SkipWithError("no page: gen_html.py not found (set ANCHORS)");
        return;
    }
    for (auto _ : state) {
        CodeMax editor;
        editor.setLanguage(QStringLiteral("HTML"));
        editor.setText(text);
        benchmark::DoNotOptimize(editor.SendScintilla(QsciScintillaBase::SCI_GETLENGTH));
    }
}
BENCHMARK(BM_LoadHtmlWithoutColouring)->Arg(50)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();

static void BM_LoadAndColourRecordLanguage(benchmark::State& state)
{
    loadAndColour(state, "JavaScript", scriptText(static_cast<int>(state.range(0))));
}
BENCHMARK(BM_LoadAndColourRecordLanguage)->Arg(5)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();

// Only the styling of the first 60 lines is timed; the text is in place before.
static void BM_ColourFirstScreenOfHtml(benchmark::State& state)
{
    const QString text = htmlPage(static_cast<int>(state.range(0)));
    if (text.isEmpty()) {
        state.SkipWithError("no page: gen_html.py not found (set ANCHORS)");
        return;
    }
    CodeMax editor;
    editor.setLanguage(QStringLiteral("HTML"));
    editor.setText(text);
    const long screenEnd = editor.SendScintilla(QsciScintillaBase::SCI_POSITIONFROMLINE, 60UL);
    for (auto _ : state) {
        state.PauseTiming();
        editor.SendScintilla(QsciScintillaBase::SCI_STARTSTYLING, 0UL, 0L);   // forget earlier styling
        state.ResumeTiming();
        editor.SendScintilla(QsciScintillaBase::SCI_COLOURISE, 0UL, screenEnd);
        benchmark::DoNotOptimize(editor.SendScintilla(QsciScintillaBase::SCI_GETENDSTYLED));
    }
}
BENCHMARK(BM_ColourFirstScreenOfHtml)->Arg(50)->Unit(benchmark::kMicrosecond)->UseRealTime();

// The user jumps to the end of a freshly opened big page and types there, while the page is
// still being coloured in the background: how long each of the two takes to show.
static void BM_CtrlEndAndTypeWhileColouring(benchmark::State& state)
{
    const QString path = anchorPagePath(static_cast<int>(state.range(0)));
    if (path.isEmpty()) {
        state.SkipWithError("no page: gen_html.py not found (set ANCHORS)");
        return;
    }
    double jump = 0, type = 0;
    for (auto _ : state) {
        CodeMax editor;
        editor.resize(1000, 700);
        editor.setLanguage(QStringLiteral("HTML"));
        editor.show();
        editor.OpenFile(path);
        QCoreApplication::processEvents();  // the first screen
        QElapsedTimer t;
        t.start();
        editor.SendScintilla(QsciScintillaBase::SCI_DOCUMENTEND);
        editor.repaint();
        jump = t.elapsed();
        t.restart();
        editor.SendScintilla(QsciScintillaBase::SCI_ADDTEXT, 1UL, "x");
        editor.repaint();
        type = t.elapsed();
    }
    state.counters["ctrl_end_ms"] = jump;
    state.counters["type_at_end_ms"] = type;
}
BENCHMARK(BM_CtrlEndAndTypeWhileColouring)->Arg(50)->Unit(benchmark::kMillisecond)->Iterations(1)->UseRealTime();

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    DefinePhpLanguage();
    DefineJavaScriptLanguage();
    DefineDelphiLanguage();
    DefineBasicLanguage();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
