// The spell checker's two costs: loading the full dictionary (target: under 50 ms) and the word
// walk with the word test over a 1 MB English text, in words a second. The text is the corpus
// the shared anchor script spell.sh makes (SPELL_CORPUS, else its cache); bench/spelling.sh
// makes it and times the whole filter beside hunspell.
#include "spelling/SpellEngine.h"
#include "spelling/WordWalker.h"

#include <QFile>
#include <benchmark/benchmark.h>

namespace {
const QString dictionary = QStringLiteral(VELLORO_BUILD_DIR "/dictionary.txt");

QString corpusPath()
{
    if (!qEnvironmentVariableIsEmpty("SPELL_CORPUS"))
        return qEnvironmentVariable("SPELL_CORPUS");
    const QString tmp = qEnvironmentVariableIsEmpty("TMPDIR") ? QStringLiteral("/tmp") : qEnvironmentVariable("TMPDIR");
    return tmp + QStringLiteral("/anchors-cache/corpus-en.txt");
}

// Whole-text walk; answers the number of words tested and of misspelt ones.
std::pair<long, long> walk(const QString& text)
{
    const clsWordTree& tree = modMain::WordTree();
    WordWalker walker;
    int start = 0, end = -1;
    const int length = static_cast<int>(text.size());
    long tested = 0, misspelt = 0;
    for (;;) {
        const Spelling::WordStop stop = Spelling::checkNextWord(
            walker, text, start, end, [length](int at) { return std::clamp(at, 0, length); },
            [&](QStringView w) {
                ++tested;
                return Spelling::isCorrectWord(tree, w);
            });
        if (stop.kind == Spelling::WordStop::None)
            break;
        misspelt += stop.kind == Spelling::WordStop::Misspelt;
        start = stop.start + std::min(stop.length, length - stop.start);
    }
    return {tested, misspelt};
}
}

static void BM_LoadDictionary(benchmark::State& state)
{
    if (!QFile::exists(dictionary)) {
        state.SkipWithError("no dictionary.txt in the build folder");
        return;
    }
    for (auto _ : state)
        modMain::LoadWordList(dictionary);
    state.counters["words"] = modMain::WordTree().wordCount();
    state.counters["buckets"] = modMain::WordTree().Count();
}
BENCHMARK(BM_LoadDictionary)->Unit(benchmark::kMillisecond);

static void BM_CheckEnglishText(benchmark::State& state)
{
    QFile f(corpusPath());
    if (!f.open(QIODevice::ReadOnly) || !QFile::exists(dictionary)) {
        state.SkipWithError("no corpus (run bench/spelling.sh) or no dictionary");
        return;
    }
    QString text = QString::fromUtf8(f.readAll());
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    modMain::LoadWordList(dictionary);
    std::pair<long, long> counts;
    for (auto _ : state)
        counts = walk(text);
    state.counters["words"] = double(counts.first);
    state.counters["misspelt"] = double(counts.second);
    state.counters["words/s"] = benchmark::Counter(double(counts.first), benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(BM_CheckEnglishText)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
