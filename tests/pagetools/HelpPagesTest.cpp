// The help pages shipped in the application folder: each is a self-contained UTF-8 page with
// CR LF line ends, every local link and picture resolves (a fragment names an id of its target),
// nothing points outside the folder, the start page leads to every page and every page leads
// back to it, and the style sheet guide that other windows open by name is there.
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QStringDecoder>
#include <QUrl>
#include <gtest/gtest.h>

namespace {

const QString startPage = QStringLiteral("Index.htm");
const QString styleGuide = QStringLiteral("CSS Documents.htm");

QString helpFolder() { return QStringLiteral(VELLORO_SOURCE_DATA) + QStringLiteral("/Documents/Help"); }

QByteArray readBytes(const QString& path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return {};
    return f.readAll();
}

struct Tag {
    QString name;                  // lower case; "/p" for an end tag
    QHash<QString, QString> attributes;  // names in lower case, values as written
};

// The tags of a page, in order. Comments and the doctype are skipped; text between tags is
// not a tag, so an escaped example such as "&lt;a href=..." counts for nothing. Returns false
// with a reason when the markup cannot be read.
bool readTags(const QString& page, QList<Tag>* tags, QString* fault)
{
    static const QRegularExpression attribute(
        QStringLiteral(R"re(([a-zA-Z_:][-a-zA-Z0-9_:.]*)(?:\s*=\s*(?:"([^"]*)"|'([^']*)'|([^\s"'=<>`]+)))?)re"));
    qsizetype i = 0;
    while ((i = page.indexOf(QLatin1Char('<'), i)) >= 0) {
        if (page.mid(i, 4) == QLatin1String("<!--")) {
            const qsizetype end = page.indexOf(QStringLiteral("-->"), i + 4);
            if (end < 0)
                return *fault = QStringLiteral("an unclosed comment"), false;
            i = end + 3;
            continue;
        }
        if (page.mid(i, 9).compare(QLatin1String("<!doctype"), Qt::CaseInsensitive) == 0) {
            i = page.indexOf(QLatin1Char('>'), i) + 1;
            if (i == 0)
                return *fault = QStringLiteral("an unclosed doctype"), false;
            continue;
        }
        const bool closing = page.mid(i + 1, 1) == QLatin1String("/");
        qsizetype j = i + (closing ? 2 : 1);
        const qsizetype nameStart = j;
        while (j < page.size() && (page[j].isLetterOrNumber()))
            ++j;
        if (j == nameStart || !page[nameStart].isLetter())
            return *fault = QStringLiteral("a bare '<' at offset %1").arg(i), false;
        Tag tag;
        tag.name = (closing ? QStringLiteral("/") : QString()) + page.mid(nameStart, j - nameStart).toLower();
        // The tag ends at the first '>' outside a quoted value.
        qsizetype k = j;
        QChar quote;
        for (; k < page.size(); ++k) {
            const QChar c = page[k];
            if (!quote.isNull()) {
                if (c == quote)
                    quote = QChar();
            } else if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
                quote = c;
            } else if (c == QLatin1Char('>')) {
                break;
            }
        }
        if (k >= page.size())
            return *fault = QStringLiteral("an unclosed <%1>").arg(tag.name), false;
        auto it = attribute.globalMatch(page.mid(j, k - j));
        while (it.hasNext()) {
            const auto m = it.next();
            const QString value = !m.captured(2).isNull() ? m.captured(2) : !m.captured(3).isNull() ? m.captured(3) : m.captured(4);
            tag.attributes.insert(m.captured(1).toLower(), value);
        }
        tags->append(tag);
        i = k + 1;
    }
    return true;
}

// A reference from a page: the file it names (empty for the page itself) and the fragment.
struct Reference {
    QString file;
    QString fragment;
    bool external = false;
};

Reference splitReference(const QString& value)
{
    Reference r;
    // A scheme ("http:", "mailto:", "file:") or a network path leaves the help folder.
    static const QRegularExpression scheme(QStringLiteral("^[a-zA-Z][a-zA-Z0-9+.-]*:"));
    if (scheme.match(value).hasMatch() || value.startsWith(QLatin1String("//")) || value.startsWith(QLatin1Char('/'))) {
        r.external = true;
        return r;
    }
    const qsizetype hash = value.indexOf(QLatin1Char('#'));
    r.file = QUrl::fromPercentEncoding(value.left(hash < 0 ? value.size() : hash).toUtf8());
    if (hash >= 0)
        r.fragment = value.mid(hash + 1);
    return r;
}

struct Page {
    QString name;
    QByteArray bytes;
    QString text;
    QList<Tag> tags;
    QString fault;  // why the markup could not be read, if it could not
    QList<QString> ids;
};

class HelpPages : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        pages = new QList<Page>;
        const QDir dir(helpFolder());
        for (const QString& name : dir.entryList({QStringLiteral("*.htm")}, QDir::Files, QDir::Name)) {
            Page p;
            p.name = name;
            p.bytes = readBytes(dir.filePath(name));
            p.text = QString::fromUtf8(p.bytes);
            readTags(p.text, &p.tags, &p.fault);
            for (const Tag& t : p.tags)
                if (t.attributes.contains(QStringLiteral("id")))
                    p.ids.append(t.attributes.value(QStringLiteral("id")));
            pages->append(p);
        }
    }
    static void TearDownTestSuite()
    {
        delete pages;
        pages = nullptr;
    }
    static const Page* page(const QString& name)
    {
        for (const Page& p : *pages)
            if (p.name == name)
                return &p;
        return nullptr;
    }
    // Every href and src of real tags, with the tag's name.
    static QList<std::pair<QString, QString>> references(const Page& p)
    {
        QList<std::pair<QString, QString>> list;
        for (const Tag& t : p.tags)
            for (const char* a : {"href", "src"})
                if (t.attributes.contains(QLatin1String(a)))
                    list.append({t.name, t.attributes.value(QLatin1String(a))});
        return list;
    }
    static inline QList<Page>* pages = nullptr;
};

}  // namespace

// The reader that the checks below rely on: only real tags count, attribute values are taken in
// every quoting, references are split and decoded.
TEST(HelpPageReader, ReadsOnlyRealTags)
{
    const struct {
        const char* page;
        QStringList tags;  // name=href of each tag, in order
        bool readable;
    } cases[] = {
        {R"(<p>See <a href="Open%20and%20Save.htm#open">Open</a>.</p>)", {"p=", "a=Open%20and%20Save.htm#open", "/a=", "/p="}, true},
        {R"(<pre>&lt;a href="page2.htm"&gt;</pre>)", {"pre=", "/pre="}, true},
        {R"(<!-- <a href="x.htm"> --><br>)", {"br="}, true},
        {R"(<!DOCTYPE html><A HREF='y.htm' title="a > b">)", {"a=y.htm"}, true},
        {R"(<img src=images/a.png alt=x>)", {"img="}, true},
        {R"(if a < b then)", {}, false},
        {R"(<p class="x)", {}, false},
        {R"(<!-- never closed)", {}, false},
    };
    for (const auto& c : cases) {
        QList<Tag> tags;
        QString fault;
        const bool ok = readTags(QString::fromUtf8(c.page), &tags, &fault);
        EXPECT_EQ(ok, c.readable) << c.page << " " << fault.toStdString();
        if (!ok)
            continue;
        QStringList seen;
        for (const Tag& t : tags)
            seen << t.name + QLatin1Char('=') + t.attributes.value(QStringLiteral("href"));
        QStringList want;
        for (const QString& s : c.tags)
            want << s;
        EXPECT_EQ(seen, want) << c.page;
    }
    QList<Tag> img;
    QString fault;
    ASSERT_TRUE(readTags(QStringLiteral("<img src=images/a.png alt=x>"), &img, &fault));
    EXPECT_EQ(img.value(0).attributes.value(QStringLiteral("src")), QStringLiteral("images/a.png"));

    const struct {
        const char* value;
        const char* file;
        const char* fragment;
        bool external;
    } refs[] = {
        {"Open%20and%20Save.htm#saveas", "Open and Save.htm", "saveas", false},
        {"#tags", "", "tags", false},
        {"images/main-window.png", "images/main-window.png", "", false},
        {"http://example.com/", "", "", true},
        {"mailto:me@example.com", "", "", true},
        {"//example.com/x.htm", "", "", true},
        {"/etc/passwd", "", "", true},
    };
    for (const auto& r : refs) {
        const Reference got = splitReference(QString::fromUtf8(r.value));
        EXPECT_EQ(got.external, r.external) << r.value;
        if (r.external)
            continue;
        EXPECT_EQ(got.file, QString::fromUtf8(r.file)) << r.value;
        EXPECT_EQ(got.fragment, QString::fromUtf8(r.fragment)) << r.value;
    }
}

TEST_F(HelpPages, TheFolderHoldsTheStartPageAndTheStyleSheetGuide)
{
    // Other windows open these two by their exact names.
    EXPECT_TRUE(QFileInfo(helpFolder() + QLatin1Char('/') + startPage).isFile());
    EXPECT_TRUE(QFileInfo(helpFolder() + QLatin1Char('/') + styleGuide).isFile());
    ASSERT_NE(page(startPage), nullptr);
    ASSERT_NE(page(styleGuide), nullptr);
    // The list of files is the table of contents: its names are what the reader sees.
    EXPECT_GE(pages->size(), 10);
    for (const Page& p : *pages) {
        EXPECT_FALSE(p.name.startsWith(QLatin1Char('.'))) << p.name.toStdString();
        EXPECT_EQ(p.name, p.name.trimmed()) << p.name.toStdString();
    }
}

TEST_F(HelpPages, EveryPageIsUtf8WithCrLfLines)
{
    QList<std::pair<QString, QByteArray>> files;
    for (const Page& p : *pages)
        files.append({p.name, p.bytes});
    files.append({QStringLiteral("style/help.css"), readBytes(helpFolder() + QStringLiteral("/style/help.css"))});
    for (const auto& [name, bytes] : files) {
        SCOPED_TRACE(name.toStdString());
        ASSERT_FALSE(bytes.isEmpty());
        QStringDecoder utf8(QStringDecoder::Utf8);
        const QString text = utf8(bytes);
        EXPECT_FALSE(utf8.hasError());
        EXPECT_FALSE(bytes.startsWith("\xEF\xBB\xBF")) << "a byte order mark";
        for (qsizetype i = 0; i < bytes.size(); ++i) {
            if (bytes[i] == '\n' && (i == 0 || bytes[i - 1] != '\r')) {
                ADD_FAILURE() << "a bare LF at byte " << i;
                break;
            }
            if (bytes[i] == '\r' && (i + 1 == bytes.size() || bytes[i + 1] != '\n')) {
                ADD_FAILURE() << "a bare CR at byte " << i;
                break;
            }
        }
        EXPECT_TRUE(bytes.endsWith("\r\n"));
    }
}

TEST_F(HelpPages, EveryPageIsAStandaloneHtml5Document)
{
    static const QSet<QString> voids = {"area", "base", "br", "col", "embed", "hr", "img", "input",
                                        "link", "meta", "source", "track", "wbr"};
    for (const Page& p : *pages) {
        SCOPED_TRACE(p.name.toStdString());
        ASSERT_TRUE(p.fault.isEmpty()) << p.fault.toStdString();
        EXPECT_TRUE(p.text.startsWith(QLatin1String("<!DOCTYPE html>")));
        bool charset = false, sheet = false, script = false;
        QString title;
        QStringList open;
        for (qsizetype k = 0; k < p.tags.size(); ++k) {
            const Tag& t = p.tags[k];
            if (t.name == QLatin1String("meta") && t.attributes.value(QStringLiteral("charset")).compare(QLatin1String("utf-8"), Qt::CaseInsensitive) == 0)
                charset = true;
            if (t.name == QLatin1String("link") && t.attributes.value(QStringLiteral("rel")) == QLatin1String("stylesheet"))
                sheet = t.attributes.value(QStringLiteral("href")) == QLatin1String("style/help.css");
            if (t.name == QLatin1String("script") || t.attributes.keys().filter(QRegularExpression(QStringLiteral("^on"))).size())
                script = true;
            // Every element but the void ones is closed, in order.
            if (t.name.startsWith(QLatin1Char('/'))) {
                const QString name = t.name.mid(1);
                if (open.isEmpty() || open.last() != name) {
                    ADD_FAILURE() << "</" << name.toStdString() << "> closes <"
                                  << (open.isEmpty() ? std::string() : open.last().toStdString()) << ">";
                    break;
                }
                open.removeLast();
            } else if (!voids.contains(t.name)) {
                open.append(t.name);
            }
        }
        EXPECT_TRUE(open.isEmpty()) << "unclosed <" << (open.isEmpty() ? std::string() : open.last().toStdString()) << ">";
        static const QRegularExpression titleText(QStringLiteral("<title>([^<]*)</title>"));
        title = titleText.match(p.text).captured(1).trimmed();
        EXPECT_TRUE(charset) << "no <meta charset=\"utf-8\">";
        EXPECT_TRUE(sheet) << "the shared style sheet is not linked";
        EXPECT_FALSE(script) << "a script";
        EXPECT_FALSE(title.isEmpty()) << "no title";
        // Text outside tags has no raw '&' that is not an entity.
        static const QRegularExpression bareAmpersand(QStringLiteral("&(?![a-zA-Z]+;|#[0-9]+;|#x[0-9a-fA-F]+;)"));
        EXPECT_FALSE(bareAmpersand.match(p.text).hasMatch()) << "a bare '&'";
        // Ids are unique, or a fragment would be ambiguous.
        EXPECT_EQ(QSet<QString>(p.ids.begin(), p.ids.end()).size(), p.ids.size()) << "an id twice";
    }
}

TEST_F(HelpPages, EveryLocalLinkAndPictureResolves)
{
    QHash<QString, QSet<QString>> idsOf;
    for (const Page& p : *pages)
        idsOf.insert(p.name, QSet<QString>(p.ids.begin(), p.ids.end()));
    int checked = 0, fragments = 0;
    for (const Page& p : *pages) {
        SCOPED_TRACE(p.name.toStdString());
        for (const auto& [tag, value] : references(p)) {
            const Reference r = splitReference(value);
            EXPECT_FALSE(r.external) << "<" << tag.toStdString() << "> leaves the help folder: " << value.toStdString();
            if (r.external)
                continue;
            ++checked;
            const QString target = r.file.isEmpty() ? p.name : r.file;
            const QFileInfo file(helpFolder() + QLatin1Char('/') + target);
            // Resolved inside the folder: "../" would reach files the application folder may lack.
            EXPECT_TRUE(file.isFile()) << value.toStdString() << " is not there";
            EXPECT_TRUE(file.canonicalFilePath().startsWith(QDir(helpFolder()).canonicalPath() + QLatin1Char('/')))
                << value.toStdString();
            if (r.fragment.isEmpty())
                continue;
            ++fragments;
            EXPECT_TRUE(target.endsWith(QLatin1String(".htm"))) << value.toStdString();
            EXPECT_TRUE(idsOf.value(target).contains(r.fragment))
                << value.toStdString() << ": no id \"" << r.fragment.toStdString() << "\" in " << target.toStdString();
        }
    }
    // The pages are linked among themselves, fragments included: a reader that found nothing
    // would check nothing.
    EXPECT_GT(checked, 2 * pages->size());
    EXPECT_GT(fragments, pages->size());
}

TEST_F(HelpPages, TheStartPageLeadsToEveryPageAndEveryPageBack)
{
    const Page* index = page(startPage);
    ASSERT_NE(index, nullptr);
    QSet<QString> fromIndex;
    for (const auto& [tag, value] : references(*index))
        if (tag == QLatin1String("a"))
            fromIndex.insert(splitReference(value).file);
    for (const Page& p : *pages) {
        if (p.name == startPage)
            continue;
        EXPECT_TRUE(fromIndex.contains(p.name)) << startPage.toStdString() << " has no link to " << p.name.toStdString();
        bool back = false;
        for (const auto& [tag, value] : references(p))
            back = back || (tag == QLatin1String("a") && splitReference(value).file == startPage);
        EXPECT_TRUE(back) << p.name.toStdString() << " has no link back to " << startPage.toStdString();
    }
}

TEST_F(HelpPages, PicturesArePngFilesThePagesUse)
{
    QSet<QString> used;
    for (const Page& p : *pages)
        for (const auto& [tag, value] : references(p))
            if (tag == QLatin1String("img")) {
                used.insert(splitReference(value).file);
                const Tag* img = nullptr;
                for (const Tag& t : p.tags)
                    if (t.name == QLatin1String("img") && t.attributes.value(QStringLiteral("src")) == value)
                        img = &t;
                ASSERT_NE(img, nullptr);
                EXPECT_FALSE(img->attributes.value(QStringLiteral("alt")).isEmpty()) << value.toStdString() << " has no alt text";
            }
    const QDir images(helpFolder() + QStringLiteral("/images"));
    for (const QString& name : images.entryList(QDir::Files)) {
        SCOPED_TRACE(name.toStdString());
        EXPECT_TRUE(used.contains(QStringLiteral("images/") + name)) << "no page shows it";
        EXPECT_TRUE(readBytes(images.filePath(name)).startsWith("\x89PNG\r\n\x1a\n")) << "not a PNG";
        // Small pictures keep the help folder light to ship and quick to show.
        EXPECT_LE(QFileInfo(images.filePath(name)).size(), 64 * 1024);
    }
}

#ifdef VELLORO_BUILD_DATA
// The build folder is an application folder: the help is copied there as it is.
TEST_F(HelpPages, AreCopiedNextToTheProgram)
{
    for (const Page& p : *pages)
        EXPECT_EQ(readBytes(QStringLiteral(VELLORO_BUILD_DATA "/Documents/Help/") + p.name), p.bytes) << p.name.toStdString();
}
#endif
