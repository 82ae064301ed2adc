// The spell checker's word walk and word test as a filter: the text on stdin, the words that
// fail the test on stdout, one a line. The list file is the first argument (else dictionary.txt
// beside this program's build folder). It walks as the check window does, without stopping:
// every misspelt word is written; words lacking only their capital are not misspellings.
#include "platform/RuntimeError.h"
#include "spelling/SpellEngine.h"
#include "spelling/WordWalker.h"

#include <QString>
#include <cstdio>
#include <string>
#include <unistd.h>

namespace {
QByteArray readAll(int fd)
{
    QByteArray all;
    char buf[1 << 16];
    for (;;) {
        const ssize_t n = ::read(fd, buf, sizeof buf);
        if (n <= 0)
            break;
        all.append(buf, n);
    }
    return all;
}
}

int main(int argc, char** argv)
{
    const QString list = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral(VELLORO_BUILD_DIR "/dictionary.txt");
    try {
        modMain::LoadWordList(list);
    } catch (const RuntimeError& e) {
        std::fprintf(stderr, "velloro_spell: %s: %s\n", qPrintable(list), qPrintable(e.description));
        return 2;
    }
    const clsWordTree& tree = modMain::WordTree();
    // The text as the notepad holds it: one character per line break.
    QString text = QString::fromUtf8(readAll(0));
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));

    std::string out;
    WordWalker walker;
    int start = 0, end = -1;
    const int length = static_cast<int>(text.size());
    for (;;) {
        const Spelling::WordStop stop = Spelling::checkNextWord(
            walker, text, start, end, [length](int at) { return std::clamp(at, 0, length); },
            [&tree](QStringView w) { return Spelling::isCorrectWord(tree, w); });
        if (stop.kind == Spelling::WordStop::None)
            break;
        if (stop.kind == Spelling::WordStop::Misspelt) {
            out += stop.word.toStdString();
            out += '\n';
        }
        // On from the end of the word, as Ignore goes on.
        start = stop.start + std::min(stop.length, length - stop.start);
    }
    std::fwrite(out.data(), 1, out.size(), stdout);
    return 0;
}
