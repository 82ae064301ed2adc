#include "app/CommandLine.h"

#include "platform/App.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "report/ReportEngine.h"
#include "spelling/SpellEngine.h"
#include "spelling/WordWalker.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTextStream>
#include <cstdio>

namespace CommandLine {
namespace {
QString usage()
{
    return QStringLiteral(
        "Usage: velloro [FILE...]\n"
        "       velloro --report FILE...\n"
        "       velloro --spell FILE...\n"
        "\n"
        "Without an option, Velloro starts and opens each FILE as a web page.\n"
        "\n"
        "  --report FILE...  print the page report of each file: one line a row, with the\n"
        "                    file, \"pass\" or \"fail\" and the row's caption, tab separated;\n"
        "                    the exit status is 1 when a row fails\n"
        "  --spell FILE...   print the misspelt words of each file as FILE:LINE:COLUMN: WORD,\n"
        "                    checked with Velloro's dictionary.txt (and the words you added);\n"
        "                    the exit status is 1 when a word is misspelt\n"
        "  -h, --help        print this help and exit\n"
        "  -v, --version     print the version and exit\n"
        "\n"
        "Exit status 2: a file could not be read, or the dictionary is missing.\n");
}

// A file's text as the editor reads it; nothing (and a message on err) when it cannot be read.
std::optional<QString> readFile(const QString& path, QTextStream& err)
{
    bool ok = false;
    const QByteArray bytes = QFileInfo(path).isFile() ? TextFiles::readBytes(path, &ok) : QByteArray();
    if (!ok) {
        err << "velloro: " << path << ": " << (QFileInfo::exists(path) ? "cannot be read" : "no such file") << '\n';
        return std::nullopt;
    }
    return TextFiles::decode(bytes);
}

int eachFile(const QStringList& files, QTextStream& out, QTextStream& err,
             const std::function<bool(const QString&, const QString&)>& tool)
{
    if (files.isEmpty()) {
        err << "velloro: no file given\n" << usage();
        return 2;
    }
    int status = 0;
    for (const QString& file : files) {
        const std::optional<QString> text = readFile(file, err);
        if (!text)
            status = 2;
        else if (!tool(file, *text) && status == 0)
            status = 1;
        out.flush();
    }
    return status;
}
}

QString reportLines(const QString& file, const QString& pageText, bool* failed)
{
    // The report reads small letters, as its window does after Lower Case.
    const QString text = pageText.toLower();
    QString lines;
    for (const Report::Row& row : Report::report(text)) {
        if (!row.passed && failed)
            *failed = true;
        lines += file + QLatin1Char('\t') + (row.passed ? QStringLiteral("pass") : QStringLiteral("fail")) +
                 QLatin1Char('\t') + row.caption + QLatin1Char('\n');
    }
    return lines;
}

QString spellLines(const QString& file, const QString& fileText)
{
    // The text as a notepad holds it: one character for each line end.
    QString text = fileText;
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    const clsWordTree& tree = modMain::WordTree();
    QString lines;
    int line = 1, lineStart = 0, scanned = 0;
    Spelling::forEachMisspelt(
        text, [&tree](QStringView w) { return Spelling::isCorrectWord(tree, w); },
        [&](int start, const QString& word) {
            for (; scanned < start; ++scanned)
                if (text.at(scanned) == QLatin1Char('\n')) {
                    ++line;
                    lineStart = scanned + 1;
                }
            lines += QStringLiteral("%1:%2:%3: %4\n").arg(file).arg(line).arg(start - lineStart + 1).arg(word);
        });
    return lines;
}

std::optional<int> run(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    const QString option = arguments.value(0);
    if (option == QLatin1String("--help") || option == QLatin1String("-h")) {
        out << usage();
        return 0;
    }
    if (option == QLatin1String("--version") || option == QLatin1String("-v")) {
        out << "Velloro " << App::versionNumber() << '\n';
        return 0;
    }
    const QStringList files = arguments.mid(1);
    if (option == QLatin1String("--report"))
        return eachFile(files, out, err, [&out, &err](const QString& file, const QString& text) {
            if (text.isEmpty()) {
                err << "velloro: " << file << ": No Data to Report on.\n";
                return false;
            }
            bool failed = false;
            out << reportLines(file, text, &failed);
            return !failed;
        });
    if (option == QLatin1String("--spell")) {
        const QString dictionary = App::userFile(QStringLiteral("dictionary.txt"));
        try {
            modMain::LoadWordList(dictionary);
        } catch (const RuntimeError& e) {
            err << "velloro: " << dictionary << ": " << e.description << '\n';
            return 2;
        }
        return eachFile(files, out, err, [&out](const QString& file, const QString& text) {
            const QString lines = spellLines(file, text);
            out << lines;
            return lines.isEmpty();
        });
    }
    return std::nullopt;
}

std::optional<int> runFromMain(int argc, char** argv)
{
    static const char* const ours[] = {"--help", "-h", "--version", "-v", "--report", "--spell"};
    if (argc < 2 || std::none_of(std::begin(ours), std::end(ours),
                                 [&](const char* o) { return qstrcmp(argv[1], o) == 0; }))
        return std::nullopt;
    QCoreApplication app(argc, argv);
    QTextStream out(stdout), err(stderr);
    const std::optional<int> status = run(app.arguments().mid(1), out, err);
    out.flush();
    err.flush();
    return status;
}
}
