// The picture gallery on a folder of 10,000 pictures, as a user meets it: the search, then the
// page written and opened as a web page (the click on "Create Page" until the page stands in
// the editor).
#include "ProgramBench.h"
#include "pagetools/GifLoader.h"
#include "pagetools/PictureShow.h"
#include "platform/Application.h"
#include "platform/FileControls.h"
#include "platform/Forms.h"
#include "platform/ScriptedPrompts.h"
#include "services/Commands.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace {
QTemporaryDir* folder = nullptr;
constexpr int pictureCount = 10000;

// The same small picture under 10,000 names, made once per run.
QString pictureFolder()
{
    const QString path = folder->filePath(QStringLiteral("pictures"));
    if (QDir(path).exists())
        return path;
    QDir().mkpath(path);
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    image.save(path + QStringLiteral("/0.gif.png"), "PNG");
    QFile first(path + QStringLiteral("/0.gif.png"));
    first.open(QIODevice::ReadOnly);
    const QByteArray bytes = first.readAll();
    for (int i = 0; i < pictureCount; ++i) {
        QFile out(path + QStringLiteral("/picture %1.gif").arg(i, 5, 10, QLatin1Char('0')));
        out.open(QIODevice::WriteOnly);
        out.write(bytes);
    }
    QFile::remove(path + QStringLiteral("/0.gif.png"));
    return path;
}

GifLoader* openGallery()
{
    Commands::click(QStringLiteral("Index Picture Generator"));
    auto* w = loadedForm<GifLoader>();
    w->List3->clear();
    w->List3->addItem(QStringLiteral("*.gif"));
    w->Dir1->setPath(pictureFolder());
    w->txtfolder->setText(folder->path());
    return w;
}

void search(benchmark::State& state)
{
    GifLoader* w = openGallery();
    for (auto _ : state)
        w->Command2->click();
    state.counters["pictures"] = w->List1->count();
}
BENCHMARK(search)->Iterations(5)->Unit(benchmark::kMillisecond)->UseRealTime();

void pageWrittenAndOpened(benchmark::State& state)
{
    GifLoader* w = openGallery();
    w->Command2->click();
    for (auto _ : state)
        w->Command3->click();
    state.counters["page_MB"] = static_cast<double>(QFile(folder->filePath(QStringLiteral("PictureShow.html"))).size()) / 1e6;
}
BENCHMARK(pageWrittenAndOpened)->Iterations(3)->Unit(benchmark::kMillisecond)->UseRealTime();

void pageTextAlone(benchmark::State& state)
{
    QStringList items;
    for (int i = 0; i < pictureCount; ++i)
        items << QStringLiteral("/home/someone/Pictures/holiday %1.gif").arg(i);
    for (auto _ : state)
        benchmark::DoNotOptimize(PictureShow::page(items, PictureShow::Layout::Bullets).size());
}
BENCHMARK(pageTextAlone)->Unit(benchmark::kMillisecond)->UseRealTime();
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    VelloroApplication app(argc, argv);
    QTemporaryDir dir;
    folder = &dir;
    ScriptedPrompts prompts;
    ProgramBench::start(dir);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
