// The spell checker's word walk and word test as a filter: the text on stdin, the words that
// fail the test on stdout, one a line. The list file is the first argument (else dictionary.txt
// beside this program's build folder). It walks as the check window does, without stopping:
// every misspelt word is written; words lacking only their capital are not misspellings.
// VELLORO_SPELL_TIMES=1 writes the time of each step to stderr.
#include "platform/RuntimeError.h"
#include "spelling/LargeBlocks.h"
#include "spelling/SpellEngine.h"
#include "spelling/WordWalker.h"

#include <QElapsedTimer>
#include <QString>
#include <QStringDecoder>
#include <cstring>
#include <cstdio>
#include <string>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
// The bytes of stdin: a file is mapped, a pipe is read.
struct Input {
    const char* data = nullptr;
    qsizetype size = 0;
    QByteArray read;
    Input()
    {
        struct stat st{};
        if (fstat(0, &st) == 0 && S_ISREG(st.st_mode) && st.st_size > 0) {
            void* p = mmap(nullptr, size_t(st.st_size), PROT_READ, MAP_PRIVATE | MAP_POPULATE, 0, 0);
            if (p != MAP_FAILED) {
                data = static_cast<const char*>(p);
                size = qsizetype(st.st_size);
                return;
            }
        }
        char buf[1 << 16];
        for (ssize_t n; (n = ::read(0, buf, sizeof buf)) > 0;)
            read.append(buf, n);
        data = read.constData();
        size = read.size();
    }
};
}

int main(int argc, char** argv)
{
    const QString list = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral(VELLORO_BUILD_DIR "/dictionary.txt");
    QElapsedTimer clock;
    clock.start();
    const bool times = qEnvironmentVariableIsSet("VELLORO_SPELL_TIMES");
    auto mark = [&](const char* what) {
        if (times)
            std::fprintf(stderr, "%s %.2f ms\n", what, double(clock.nsecsElapsed()) / 1e6);
    };
    try {
        modMain::LoadWordList(list);
    } catch (const RuntimeError& e) {
        std::fprintf(stderr, "velloro_spell: %s: %s\n", qPrintable(list), qPrintable(e.description));
        return 2;
    }
    mark("loaded");
    const clsWordTree& tree = modMain::WordTree();
    // The text as the notepad holds it: one character per line break.
    const Input input;
    // Decoded into a block of large pages: a megabyte of text is a few faults, not hundreds.
    LargeBlockAllocator<char16_t> blocks;
    const std::size_t room = std::size_t(input.size) + 1;
    char16_t* units = blocks.allocate(room);
    QStringDecoder utf8(QStringDecoder::Utf8);
    qsizetype length = utf8.appendToBuffer(reinterpret_cast<QChar*>(units), QByteArrayView(input.data, input.size)) -
                       reinterpret_cast<QChar*>(units);
    if (std::memchr(input.data, '\r', size_t(input.size))) {
        qsizetype w = 0;
        for (qsizetype r = 0; r < length; ++r)
            if (!(units[r] == u'\r' && r + 1 < length && units[r + 1] == u'\n'))
                units[w++] = units[r];
        length = w;
    }
    const QStringView text(units, length);

    mark("read");
    std::string out;
    Spelling::forEachMisspelt(
        text, [&tree](QStringView w) { return Spelling::isCorrectWord(tree, w); },
        [&out](int, const QString& word) {
            out += word.toStdString();
            out += '\n';
        });
    mark("checked");
    std::fwrite(out.data(), 1, out.size(), stdout);
    mark("written");
    return 0;
}
