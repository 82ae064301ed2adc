// The page report on a 50 MB page: engine time with and without the progress reports, and the
// process's peak memory against the page's size. The page comes from gen_html.py in the shared
// anchors folder, cached at /tmp/page-50M.html (PAGE overrides the file).
#include "report/ReportEngine.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStringDecoder>
#include <algorithm>
#include <cstdio>
#include <sys/resource.h>
#include <vector>

namespace {
double peakMegabytes()
{
    rusage u{};
    getrusage(RUSAGE_SELF, &u);
    return double(u.ru_maxrss) / 1024.0;
}

template <class F>
double bestOf(int runs, F f)
{
    std::vector<double> t;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer clock;
        clock.start();
        f();
        t.push_back(double(clock.nsecsElapsed()) / 1e9);
    }
    std::sort(t.begin(), t.end());
    return t[t.size() / 2];
}
}

int main()
{
    const QString file = qEnvironmentVariableIsEmpty("PAGE") ? QStringLiteral("/tmp/page-50M.html") : qEnvironmentVariable("PAGE");
    if (QFileInfo(file).size() == 0) {
        const int rc = QProcess::execute(QStringLiteral("python3"),
                                         {QStringLiteral(VELLORO_ANCHORS_DIR "/gen_html.py"), QStringLiteral("50M"), file});
        if (rc != 0) {
            std::fprintf(stderr, "bench_report: cannot make %s\n", qPrintable(file));
            return 1;
        }
    }
    QString text;
    qint64 bytes = 0;
    {
        // Decoded in pieces into one reserved string, as the editor hands its text over: the
        // page is never held twice.
        QFile f(file);
        if (!f.open(QIODevice::ReadOnly))
            return 1;
        bytes = f.size();
        text.reserve(bytes);
        QStringDecoder decode(QStringDecoder::Utf8);
        QByteArray piece;
        while (!(piece = f.read(1 << 20)).isEmpty())
            text.append(decode(piece));
        // The report reads its editor's text in small letters.
        text = std::move(text).toLower();
    }
    const double pageMb = double(bytes) / (1024.0 * 1024.0);
    const double before = peakMegabytes();

    Report::Counts counts;
    const double plain = bestOf(5, [&] { counts = Report::countPage(text); });
    qsizetype lastValue = 0;
    int reports = 0;
    const double withBar = bestOf(5, [&] {
        counts = Report::countPage(text, [&](qsizetype value, qsizetype) {
            lastValue = value;
            ++reports;
        });
    });
    const double rowsTime = bestOf(5, [&] { (void)Report::report(text); });
    const double after = peakMegabytes();

    std::printf("page %s: %.1f MB, %lld tokens, %lld <p>, %lld <td>\n", qPrintable(file), pageMb,
                static_cast<long long>(lastValue), static_cast<long long>(counts.pOpen), static_cast<long long>(counts.tdOpen));
    std::printf("engine alone:          %.3f s (median of 5)\n", plain);
    std::printf("engine with progress:  %.3f s (%+.1f %%, %d reports a run)\n", withBar, 100.0 * (withBar - plain) / plain,
                reports / 5);
    std::printf("engine and 16 rows:    %.3f s\n", rowsTime);
    std::printf("peak memory: %.1f MB with the page loaded, %.1f MB after the runs (%.2f x the page)\n", before, after,
                after / pageMb);
    return 0;
}
