// Every script of the script list has its page in the application folder's data, and each
// page is a complete, self-contained document with a script of its own.
#include "common/PageTags.h"
#include "reference/ReferenceData.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <gtest/gtest.h>

namespace {

QString readPage(const QString& folder, const QString& key)
{
    QFile f(folder + QLatin1Char('/') + ReferenceData::scriptPageRelativePath(key));
    if (!f.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(f.readAll());
}

// The markup's first fault, or an empty string; fills the bodies of the scripts found.
QString checkMarkup(const QString& page, QStringList* scripts)
{
    QString fault;
    const QList<Tag> tags = tagsOf(page, &fault);
    if (!fault.isEmpty())
        return fault;
    for (const Tag& t : tags)
        if (t.name == QLatin1String("script") && scripts)
            *scripts << t.body;
    return checkNesting(tags);
}

}  // namespace

#ifdef VELLORO_BUILD_DATA
// The build folder is an application folder: the pages are copied there as they are.
TEST(ScriptPages, AreCopiedNextToTheProgram)
{
    for (const QString& key : ReferenceData::scriptPageKeys())
        EXPECT_EQ(readPage(QStringLiteral(VELLORO_BUILD_DATA), key), readPage(QStringLiteral(VELLORO_SOURCE_DATA), key))
            << key.toStdString();
}
#endif

TEST(ScriptPages, AreCompleteSelfContainedDocumentsWithAScript)
{
    static const QRegularExpression external(QStringLiteral(R"((src|href|action)\s*=\s*["']?\s*(https?:)?//)"),
                                             QRegularExpression::CaseInsensitiveOption);
    for (const QString& key : ReferenceData::scriptPageKeys()) {
        SCOPED_TRACE(key.toStdString());
        const QString page = readPage(QStringLiteral(VELLORO_SOURCE_DATA), key);
        ASSERT_FALSE(page.isEmpty());
        // A note on how to use it comes first.
        ASSERT_TRUE(page.startsWith(QStringLiteral("<!--")));
        const qsizetype noteEnd = page.indexOf(QStringLiteral("-->"));
        ASSERT_GT(noteEnd, 0);
        EXPECT_GE(page.mid(4, noteEnd - 4).trimmed().size(), 20);
        // Then a document of today's kind.
        EXPECT_TRUE(page.mid(noteEnd + 3).trimmed().startsWith(QStringLiteral("<!DOCTYPE html>"), Qt::CaseInsensitive));
        for (const char* part : {"<html lang=", "<meta charset=\"utf-8\">", "<title>", "</title>", "<body", "</body>", "</html>"})
            EXPECT_TRUE(page.contains(QString::fromLatin1(part), Qt::CaseInsensitive)) << part;
        QStringList scripts;
        EXPECT_EQ(checkMarkup(page, &scripts).toStdString(), "");
        ASSERT_FALSE(scripts.isEmpty());
        for (const QString& s : scripts)
            EXPECT_FALSE(s.trimmed().isEmpty());
        // Nothing is fetched from elsewhere, and no old ways of writing the page.
        EXPECT_FALSE(external.match(page).hasMatch()) << external.match(page).captured(0).toStdString();
        EXPECT_FALSE(page.contains(QStringLiteral("document.write")));
        EXPECT_FALSE(page.contains(QStringLiteral("fetch(")));
        EXPECT_FALSE(page.contains(QStringLiteral("XMLHttpRequest")));
        EXPECT_FALSE(page.contains(QStringLiteral("<font"), Qt::CaseInsensitive));
    }
}

TEST(ScriptPages, TheMarkupCheckFindsFaults)
{
    // The checker itself: it must not pass what it is meant to catch.
    EXPECT_EQ(checkMarkup(QStringLiteral("<p><b>x</b></p>"), nullptr), QString());
    EXPECT_NE(checkMarkup(QStringLiteral("<p><b>x</p></b>"), nullptr), QString());
    EXPECT_NE(checkMarkup(QStringLiteral("<div>"), nullptr), QString());
    EXPECT_NE(checkMarkup(QStringLiteral("<script>if (a < b) {}"), nullptr), QString());
    QStringList scripts;
    EXPECT_EQ(checkMarkup(QStringLiteral("<br><script>if (a<b) x();</script><!-- <p> -->"), &scripts), QString());
    EXPECT_EQ(scripts, QStringList{"if (a<b) x();"});
}
