// The control channel's text rules: the reply buffer, the reply code, the verb table and the
// passive reply.
#include "ftp/FtpReply.h"

#include <gtest/gtest.h>

using namespace FtpReply;

TEST(FtpReplyBuffer, JoinsAReplySplitOverArrivals)
{
    Buffer b;
    EXPECT_TRUE(b.append("220 Wel").isEmpty());
    EXPECT_TRUE(b.append("come\r").isEmpty());
    EXPECT_EQ(b.append("\n331 Pass"), QList<QString>{QStringLiteral("220 Welcome")});
    EXPECT_EQ(b.pending(), QByteArray("331 Pass"));
    EXPECT_EQ(b.append("word required\r\n"), QList<QString>{QStringLiteral("331 Password required")});
    EXPECT_TRUE(b.pending().isEmpty());
}

TEST(FtpReplyBuffer, ByteByByteAndBareLineEnds)
{
    Buffer b;
    QList<QString> all;
    for (char c : QByteArray("200 a\rb\nc\r\n\r\n5\r\n"))
        all += b.append(QByteArray(1, c));
    // A lone CR or LF stays inside its line; an empty line is a line.
    EXPECT_EQ(all, (QList<QString>{QStringLiteral("200 a\rb\nc"), QString(), QStringLiteral("5")}));
    b.append("half");
    b.clear();
    EXPECT_EQ(b.append("226 x\r\n"), QList<QString>{QStringLiteral("226 x")});
}

TEST(FtpReplyCode, LeadingDigitsOfTheFirstThreeCharacters)
{
    for (const auto& [line, code] : {std::pair{"230 Login successful.", 230}, {"230-Welcome", 230}, {" This is text", 0},
                                     {"Hello", 0}, {"", 0}, {"5", 5}, {"42", 42}, {"22x7", 22}, {"2275", 227}, {" 12", 12},
                                     {"-12", -12}})
        EXPECT_EQ(replyCode(QString::fromLatin1(line)), code) << line;
}

TEST(FtpVerbTable, VerbsAndTheirAwaitedCodes)
{
    for (const auto& [command, verb] : {std::pair{"TYPE I", "TYPE"}, {"STOR my file.htm", "STOR"}, {"PASV", "PASV"},
                                        {"PWD", "PWD"}, {"NOOPX", "NOOP"}, {"RETR\r\nx", "RETR"}})
        EXPECT_EQ(verbOf(QString::fromLatin1(command)), QString::fromLatin1(verb)) << command;

    const struct { const char* verb; int awaited; int second; const char* tag; } rows[] = {
        {"PASV", 227, 0, ""}, {"LIST", 226, 0, "LIST"}, {"RETR", 226, 0, "RETR"}, {"CWD", 250, 530, ""},
        {"USER", 331, 0, ""}, {"REST", 350, 0, ""}, {"SYST", 215, 0, ""}, {"PWD", 257, 0, ""},
        {"TYPE", 200, 0, ""}, {"STOR", 150, 0, ""}, {"DELE", 250, 0, ""}, {"PASS", 0, 0, ""},
        {"QUIT", 0, 0, ""}, {"stor", 0, 0, ""}};
    for (const auto& r : rows) {
        const VerbEntry e = lookUp(QString::fromLatin1(r.verb));
        EXPECT_EQ(e.awaited, r.awaited) << r.verb;
        EXPECT_EQ(e.second, r.second) << r.verb;
        EXPECT_EQ(e.dataTag, QString::fromLatin1(r.tag)) << r.verb;
        EXPECT_EQ(e.alike, QLatin1String(r.verb) == QLatin1String("STOR") ? 125 : 0) << r.verb;
    }
}

TEST(FtpPassive, PortFromTheLastTwoNumbers)
{
    // The address is ignored, however private or odd it is.
    for (const auto& [line, port] : {std::pair{"227 Entering Passive Mode (127,0,0,1,195,80).", 195 * 256 + 80},
                                     {"227 =(10,1,2,3,0,21)", 21}, {"227 (999,999,999,999,1,2)", 258},
                                     {"227 ( 1, 2, 3, 4, 4, 1 ) (5,6)", 1025}}) {
        const Passive p = parsePassive(QString::fromLatin1(line));
        EXPECT_TRUE(p.ok) << line;
        EXPECT_EQ(p.port, port) << line;
    }
}

TEST(FtpPassive, MalformedRepliesAreRunTimeErrors)
{
    for (const char* line : {"227 Entering Passive Mode 127,0,0,1,195,80", "227 (127,0,0,1,195,80",
                             "227 127,0,0,1,195,80)", "227 (127,0,0,1,195)", "227 ()", "227 )(1,2,3,4,5,6"}) {
        const Passive p = parsePassive(QString::fromLatin1(line));
        EXPECT_FALSE(p.ok) << line;
        EXPECT_EQ(p.errorNumber, 9) << line;
        EXPECT_EQ(p.errorDescription, QStringLiteral("Subscript out of range")) << line;
    }
    for (const char* line : {"227 (1,2,3,4,256,0)", "227 (1,2,3,4,300,5)", "227 (1,2,3,4,0,-1)",
                             "227 (1,2,3,4,99999999999999999999,1)"}) {
        const Passive p = parsePassive(QString::fromLatin1(line));
        EXPECT_FALSE(p.ok) << line;
        EXPECT_EQ(p.errorNumber, 380) << line;
    }
    // Over 255 in the low byte still makes a port in range.
    const Passive p = parsePassive(QStringLiteral("227 (1,2,3,4,0,300)"));
    ASSERT_TRUE(p.ok);
    EXPECT_EQ(p.port, 300);
}
