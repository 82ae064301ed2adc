// One fetch of a page through the source grabber's engine into a file, as the grabber hands it to
// the editor; bench/source.sh times it beside curl on the same local server.
// usage: bench_source_fetch URL OUTPUT
#include "utilities/SourceFetch.h"

#include <QCoreApplication>
#include <QFile>
#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: bench_source_fetch URL OUTPUT\n");
        return 2;
    }
    PageFetch fetch;
    int rc = 1;
    QObject::connect(&fetch, &PageFetch::done, [&](const QByteArray& body, const QByteArray& type) {
        QFile out(QString::fromLocal8Bit(argv[2]));
        rc = out.open(QIODevice::WriteOnly) && out.write(SourceFetch::editorBytes(body, type)) >= 0 ? 0 : 1;
        app.quit();
    });
    QObject::connect(&fetch, &PageFetch::failed, [&](const QString& reason) {
        std::fprintf(stderr, "%s\n", qPrintable(SourceFetch::failureMessage(reason)));
        app.quit();
    });
    fetch.start(QUrl(QString::fromLocal8Bit(argv[1])));
    app.exec();
    return rc;
}
