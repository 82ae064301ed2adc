#pragma once
// The big HTML pages of the benchmarks come from gen_html.py in the shared anchors folder
// (ANCHORS overrides where), cached in ${TMPDIR:-/tmp}/anchors-cache as the anchor scripts do,
// so the program and its peers open the same bytes.
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QString>

// The page's path, made on first use; empty when it cannot be made.
inline QString anchorPagePath(int megabytes)
{
    const QString anchors = qEnvironmentVariableIsEmpty("ANCHORS") ? QStringLiteral(VELLORO_ANCHORS_DIR)
                                                                   : qEnvironmentVariable("ANCHORS");
    const QString cache = (qEnvironmentVariableIsEmpty("TMPDIR") ? QStringLiteral("/tmp") : qEnvironmentVariable("TMPDIR"))
                          + QStringLiteral("/anchors-cache");
    QDir().mkpath(cache);
    const QString size = QString::number(megabytes) + QLatin1Char('M');
    const QString file = cache + QStringLiteral("/page-") + size + QStringLiteral(".html");
    if (QFileInfo(file).size() == 0) {
        const QString part = file + QStringLiteral(".part");
        const int rc = QProcess::execute(QStringLiteral("python3"), {anchors + QStringLiteral("/gen_html.py"), size, part});
        if (rc != 0 || !QFile::rename(part, file))
            return {};
    }
    return file;
}
