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
    EXPECT_EQ(replyCode(QStringLiteral("230 Login successful.")), 230);
    EXPECT_EQ(replyCode(QStringLiteral("230-Welcome")), 230);
    EXPECT_EQ(replyCode(QStringLiteral(" This is text")), 0);
    EXPECT_EQ(replyCode(QStringLiteral("Hello")), 0);
    EXPECT_EQ(replyCode(QString()), 0);
    EXPECT_EQ(replyCode(QStringLiteral("5")), 5);
    EXPECT_EQ(replyCode(QStringLiteral("42")), 42);
    EXPECT_EQ(replyCode(QStringLiteral("22x7")), 22);
    EXPECT_EQ(replyCode(QStringLiteral("2275")), 227);
    EXPECT_EQ(replyCode(QStringLiteral(" 12")), 12);
    EXPECT_EQ(replyCode(QStringLiteral("-12")), -12);
}

TEST(FtpVerbTable, VerbsAndTheirAwaitedCodes)
{
    EXPECT_EQ(verbOf(QStringLiteral("TYPE I")), QStringLiteral("TYPE"));
    EXPECT_EQ(verbOf(QStringLiteral("STOR my file.htm")), QStringLiteral("STOR"));
    EXPECT_EQ(verbOf(QStringLiteral("PASV")), QStringLiteral("PASV"));
    EXPECT_EQ(verbOf(QStringLiteral("PWD")), QStringLiteral("PWD"));
    EXPECT_EQ(verbOf(QStringLiteral("NOOPX")), QStringLiteral("NOOP"));
    EXPECT_EQ(verbOf(QStringLiteral("RETR\r\nx")), QStringLiteral("RETR"));

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
    Passive p = parsePassive(QStringLiteral("227 Entering Passive Mode (127,0,0,1,195,80)."));
    ASSERT_TRUE(p.ok);
    EXPECT_EQ(p.port, 195 * 256 + 80);
    // The address is ignored, however private or odd it is.
    p = parsePassive(QStringLiteral("227 =(10,1,2,3,0,21)"));
    ASSERT_TRUE(p.ok);
    EXPECT_EQ(p.port, 21);
    p = parsePassive(QStringLiteral("227 (999,999,999,999,1,2)"));
    ASSERT_TRUE(p.ok);
    EXPECT_EQ(p.port, 258);
    p = parsePassive(QStringLiteral("227 ( 1, 2, 3, 4, 4, 1 ) (5,6)"));
    ASSERT_TRUE(p.ok);
    EXPECT_EQ(p.port, 1025);
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
