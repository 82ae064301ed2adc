// The command-line tools, run as a script would run them: the real executable, started without
// a display, its standard output and exit status read.
#include "common/TestSupport.h"

#include "platform/App.h"

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

namespace {
struct Outcome {
    int status = -1;
    QString out, err;
};

Outcome velloro(const QStringList& arguments)
{
    QProcess p;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        env.remove(QString::fromLatin1(name));
    p.setProcessEnvironment(env);
    p.start(QStringLiteral(VELLORO_EXECUTABLE), arguments);
    EXPECT_TRUE(p.waitForFinished(60000)) << arguments.join(QLatin1Char(' ')).toStdString();
    return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1, QString::fromUtf8(p.readAllStandardOutput()),
            QString::fromUtf8(p.readAllStandardError())};
}
}

TEST(CommandLine, HelpAndVersionWithoutADisplay)
{
    const QString version = QStringLiteral("Velloro %1.%2.%3\n").arg(App::major()).arg(App::minor()).arg(App::revision());
    for (const char* option : {"--version", "-v"}) {
        const Outcome r = velloro({QString::fromLatin1(option)});
        EXPECT_EQ(r.status, 0) << option;
        EXPECT_EQ(r.out, version) << option;
    }
    for (const char* option : {"--help", "-h"}) {
        const Outcome r = velloro({QString::fromLatin1(option)});
        EXPECT_EQ(r.status, 0) << option;
        EXPECT_TRUE(r.out.startsWith(QStringLiteral("Usage: velloro [FILE...]\n"))) << r.out.toStdString();
        for (const char* named : {"--report FILE...", "--spell FILE...", "--version"})
            EXPECT_TRUE(r.out.contains(QString::fromLatin1(named))) << named;
    }
    const Outcome none = velloro({QStringLiteral("--report")});
    EXPECT_EQ(none.status, 2);
    EXPECT_TRUE(none.err.startsWith(QStringLiteral("velloro: no file given\n")));
}

TEST(CommandLine, ReportRowsOfEachFile)
{
    QTemporaryDir dir;
    const QString good = dir.filePath(QStringLiteral("good.htm")), bad = dir.filePath(QStringLiteral("bad.htm")),
                  empty = dir.filePath(QStringLiteral("empty.htm")), missing = dir.filePath(QStringLiteral("gone.htm"));
    auto write = [](const QString& path, const QByteArray& bytes) {
        QFile f(path);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(bytes);
    };
    write(good, "<HTML>\r\n<head> <title> Home </title> <meta name=author content=me> <link rel=stylesheet href=a.css>"
                "\r\n</head>\r\n<body> <p> <b> Hi </b> </p> <img src=a.gif> <table> <tr> <td> 1 </td> </tr> </table>"
                "\r\n</body>\r\n</HTML>\r\n");
    write(bad, "<html> <body> <p> one <p> two </body>");
    write(empty, "");

    Outcome r = velloro({QStringLiteral("--report"), good});
    EXPECT_EQ(r.status, 0) << r.err.toStdString();
    const QStringList goodCaptions = {
        "Passed <html> tag Completion ", "Passed <body> tag Completion ", "Passed <head> tag Completion ",
        "Passed <title> tag Completion ", "Passed <p> tag Completion", "Passed <b> tag Completion",
        "Passed <i> tag Completion", "Passed <u> tag Completion", "Passed <a> tag Completion",
        "Found 1 Images ", "Found 1 Tables.", "Found 1 Table Rows.", "Found 1 Table Cells.",
        "Found 1 external links.", "Found 1 META tag groups.", "Check Completed Succesfully"};
    QString expected;
    for (const QString& caption : goodCaptions)
        expected += good + QStringLiteral("\tpass\t") + caption + QLatin1Char('\n');
    EXPECT_EQ(r.out.toStdString(), expected.toStdString());

    // Several files, one of them failing and one missing: every file that can be read is
    // reported, and the worst outcome decides the status.
    r = velloro({QStringLiteral("--report"), bad, missing, good});
    EXPECT_EQ(r.status, 2);
    EXPECT_EQ(r.err, QStringLiteral("velloro: ") + missing + QStringLiteral(": no such file\n"));
    const QStringList lines = r.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 32);
    EXPECT_EQ(lines.at(0).toStdString(), (bad + QStringLiteral("\tfail\tFailed <html> tag Completion ")).toStdString());
    EXPECT_EQ(lines.at(4).toStdString(), (bad + QStringLiteral("\tfail\tFailed <p> tag Completion")).toStdString());
    EXPECT_EQ(lines.at(9), bad + QStringLiteral("\tfail\tNo images where found"));
    EXPECT_EQ(lines.at(15), bad + QStringLiteral("\tpass\tCheck Completed Succesfully"));
    EXPECT_EQ(lines.mid(16).join(QLatin1Char('\n')) + QLatin1Char('\n'), expected);

    r = velloro({QStringLiteral("--report"), bad});
    EXPECT_EQ(r.status, 1);
    r = velloro({QStringLiteral("--report"), empty});
    EXPECT_EQ(r.status, 1);
    EXPECT_TRUE(r.out.isEmpty());
    EXPECT_EQ(r.err, QStringLiteral("velloro: ") + empty + QStringLiteral(": No Data to Report on.\n"));
}

TEST(CommandLine, SpellListsMisspeltWordsWithLineAndColumn)
{
    QTemporaryDir dir;
    const QString text = dir.filePath(QStringLiteral("note.txt")), clean = dir.filePath(QStringLiteral("clean.txt"));
    {
        QFile f(text);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("The quick brown fxo\r\njumps ovr the lazy dog.\r\n\r\nZookeepers will recieve it.\n");
        QFile g(clean);
        ASSERT_TRUE(g.open(QIODevice::WriteOnly));
        g.write("The quick brown fox jumps over the lazy dog.\r\n");
    }
    Outcome r = velloro({QStringLiteral("--spell"), text});
    EXPECT_EQ(r.status, 1) << r.err.toStdString();
    EXPECT_EQ(r.out.toStdString(), (text + QStringLiteral(":1:17: fxo\n") + text + QStringLiteral(":2:7: ovr\n") +
                                    text + QStringLiteral(":4:17: recieve\n"))
                                       .toStdString());

    r = velloro({QStringLiteral("--spell"), clean});
    EXPECT_EQ(r.status, 0);
    EXPECT_TRUE(r.out.isEmpty()) << r.out.toStdString();
}
