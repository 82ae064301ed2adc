// The shipped template pages: the general pages of the template window, the pages of the style
// sheet tools, and the two site designs the site wizard copies from. Each page is a complete,
// self-contained UTF-8 document with CR LF line ends; every file it points to lies beside it;
// the site folders hold exactly what the wizard copies, and a site page only points to files
// that are copied whenever the page itself is.
#include "common/PageTags.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QRegularExpression>
#include <QSet>
#include <QStringDecoder>
#include <QUrl>
#include <gtest/gtest.h>

namespace {

const QString kTemplates = QStringLiteral(VELLORO_SOURCE_DATA "/Templates");

QByteArray bytesOf(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// The .htm files of a folder and its subfolders, as paths relative to the template folder.
QStringList pagesUnder(const QString& folder)
{
    QStringList out;
    QDirIterator it(kTemplates + QLatin1Char('/') + folder, {QStringLiteral("*.htm")}, QDir::Files,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        out << QDir(kTemplates).relativeFilePath(it.next());
    out.sort();
    return out;
}

QSet<QString> filesIn(const QString& folder)
{
    const QStringList names = QDir(kTemplates + QLatin1Char('/') + folder).entryList(QDir::Files | QDir::Hidden);
    return QSet<QString>(names.begin(), names.end());
}

// A set as one sorted line, so that a failure shows the names.
std::string listed(const QSet<QString>& names)
{
    QStringList sorted(names.begin(), names.end());
    sorted.sort();
    return sorted.join(QStringLiteral(", ")).toStdString();
}

// The files a page points to: src, href and action values that name a file of the page's own
// folder, without their query or anchor part and percent-decoded. Addresses elsewhere
// (a scheme such as http: or mailto:, "//host", "/" from the top of the server) and bare
// anchors are left out.
QStringList localTargets(const QList<Tag>& tags)
{
    static const QRegularExpression scheme(QStringLiteral("^[a-zA-Z][a-zA-Z0-9+.-]*:"));
    QStringList out;
    for (const Tag& t : tags) {
        for (const char* name : {"src", "href", "action"}) {
            const auto it = t.attrs.constFind(QString::fromLatin1(name));
            if (it == t.attrs.constEnd())
                continue;
            QString v = it.value().trimmed();
            if (v.isEmpty() || v.startsWith(QLatin1Char('#')) || v.startsWith(QLatin1Char('/')) || scheme.match(v).hasMatch())
                continue;
            v = v.section(QLatin1Char('#'), 0, 0).section(QLatin1Char('?'), 0, 0);
            out << QUrl::fromPercentEncoding(v.toUtf8());
        }
    }
    return out;
}

// Resources a page loads from elsewhere (pictures, frames, scripts, style sheets): none allowed.
QStringList remoteResources(const QList<Tag>& tags)
{
    static const QRegularExpression remote(QStringLiteral("^\\s*([a-zA-Z][a-zA-Z0-9+.-]*:|//)"));
    QStringList out;
    for (const Tag& t : tags) {
        const QString src = t.attrs.value(QStringLiteral("src"));
        if (remote.match(src).hasMatch())
            out << src;
        if (t.name == QLatin1String("link") && remote.match(t.attrs.value(QStringLiteral("href"))).hasMatch())
            out << t.attrs.value(QStringLiteral("href"));
    }
    return out;
}

QString readPage(const QString& relative, QString* fault)
{
    const QByteArray bytes = bytesOf(kTemplates + QLatin1Char('/') + relative);
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8.decode(bytes);
    if (bytes.isEmpty())
        *fault = QStringLiteral("empty or unreadable");
    else if (utf8.hasError())
        *fault = QStringLiteral("not valid UTF-8");
    return text;
}

// The two site designs, each file with the tick that copies it. The wizard copies "always" files
// on every run, the other groups only when their tick is set, and writes the menu page itself.
struct SiteDesign {
    const char* folder;
    const char* menuPage;
    QList<QStringList> groups;  // the first group is copied always
};

const QList<SiteDesign>& designs()
{
    static const QList<SiteDesign> list = {
        {"Advanced/Sites/Business", "MainMenu.htm",
         {{"Index.htm", "Main.htm"},
          {"Services.htm"},
          {"Portfolio.htm"},
          {"Quote.htm"},
          {"About.htm"},
          {"Contact.htm"}}},
        {"Advanced/Sites/Personal", "Bar.htm",
         {{"Index.htm", "Main.htm", "climbleft.jpg"},
          {"Pictures.htm", "picmain.jpg", "CRIBGOCH.jpg"},
          {"About.htm"},
          {"Hobbies.htm", "snow21.jpg", "snow22.jpg"},
          {"Links.htm"},
          {"Contact.htm"}}},
    };
    return list;
}

bool isPicture(const QString& name)
{
    return name.endsWith(QLatin1String(".jpg"), Qt::CaseInsensitive);
}

}  // namespace

TEST(TemplateData, EveryPageIsACompleteSelfContainedDocument)
{
    QStringList pages = pagesUnder(QStringLiteral("WebPage")) + pagesUnder(QStringLiteral("General"));
    for (const SiteDesign& d : designs())
        pages += pagesUnder(QString::fromLatin1(d.folder));
    ASSERT_GE(pages.size(), 8 + 2 + 7 + 7);
    for (const QString& relative : pages) {
        SCOPED_TRACE(relative.toStdString());
        QString fault;
        const QString page = readPage(relative, &fault);
        ASSERT_EQ(fault.toStdString(), "");
        // CR LF throughout, like every other file of the program.
        EXPECT_EQ(page.count(QStringLiteral("\r\n")), page.count(QLatin1Char('\n')));
        EXPECT_EQ(page.count(QStringLiteral("\r\n")), page.count(QLatin1Char('\r')));
        EXPECT_TRUE(page.startsWith(QStringLiteral("<!DOCTYPE html>\r\n")));
        for (const char* part : {"<html lang=", "<meta charset=\"utf-8\">", "name=\"viewport\"", "<title>", "</title>", "</html>"})
            EXPECT_TRUE(page.contains(QString::fromLatin1(part))) << part;
        // The style sheet link tools write at the first "<head>" or "</head>" of a page, so each
        // stands once, in the markup and never in a note.
        EXPECT_EQ(page.count(QStringLiteral("<head>")), 1);
        EXPECT_EQ(page.count(QStringLiteral("</head>")), 1);
        const QList<Tag> tags = tagsOf(page, &fault);
        ASSERT_EQ(fault.toStdString(), "");
        EXPECT_EQ(checkNesting(tags).toStdString(), "");
        EXPECT_EQ(remoteResources(tags).join(QLatin1Char(' ')).toStdString(), "");
        // No scripts at all: these are pages to fill in, not to run.
        for (const Tag& t : tags)
            EXPECT_NE(t.name, QStringLiteral("script"));
        // Every file the page points to lies beside it.
        const QDir folder = QFileInfo(kTemplates + QLatin1Char('/') + relative).dir();
        for (const QString& target : localTargets(tags)) {
            bool isMenu = false;
            for (const SiteDesign& d : designs())
                isMenu |= relative.startsWith(QString::fromLatin1(d.folder)) && target == QString::fromLatin1(d.menuPage);
            if (!isMenu) {
                EXPECT_TRUE(QFileInfo(folder, target).isFile()) << "missing: " << target.toStdString();
            }
        }
    }
}

TEST(TemplateData, TheTemplateWindowListsOnlyPagesAndTheProgramWritesItsOwnTestPage)
{
    // The template window lists every file of WebPage as a template, so nothing else lives
    // there; the general pages are those named below, each a page worth opening.
    const QSet<QString> webPage = filesIn(QStringLiteral("WebPage"));
    for (const QString& name : webPage)
        EXPECT_TRUE(name.endsWith(QLatin1String(".htm"))) << name.toStdString();
    for (const char* name : {"Blank Page.htm", "Article.htm", "Two Column Page.htm", "Photo Page.htm", "Contact Form.htm",
                             "Link List.htm", "Table Page.htm", "About Frames.htm"})
        EXPECT_TRUE(webPage.contains(QString::fromLatin1(name))) << name;
    // The coloured scroll bar tool writes "Scroll Test.htm" into General; it is not shipped.
    const QSet<QString> general = filesIn(QStringLiteral("General"));
    EXPECT_TRUE(general.contains(QStringLiteral("About These Templates.htm")));
    EXPECT_FALSE(general.contains(QStringLiteral("Scroll Test.htm")));
}

TEST(TemplateData, EachSiteFolderHoldsExactlyTheFilesTheWizardCopies)
{
    for (const SiteDesign& d : designs()) {
        SCOPED_TRACE(d.folder);
        QSet<QString> expected;
        for (const QStringList& g : d.groups)
            for (const QString& f : g)
                expected.insert(f);
        // Names compare exactly: the wizard copies by name, and case counts here.
        EXPECT_EQ(listed(filesIn(QString::fromLatin1(d.folder))), listed(expected));
    }
}

TEST(TemplateData, SiteIndexFramesTheMenuPageAndMainAsTheFrameMain)
{
    for (const SiteDesign& d : designs()) {
        SCOPED_TRACE(d.folder);
        QString fault;
        const QList<Tag> tags = tagsOf(readPage(QString::fromLatin1(d.folder) + QStringLiteral("/Index.htm"), &fault), &fault);
        ASSERT_EQ(fault.toStdString(), "");
        QStringList sources;
        QString mainSource;
        int framesets = 0;
        for (const Tag& t : tags) {
            framesets += t.name == QLatin1String("frameset");
            if (t.name != QLatin1String("frame"))
                continue;
            sources << t.attrs.value(QStringLiteral("src"));
            if (t.attrs.value(QStringLiteral("name")) == QLatin1String("main"))
                mainSource = t.attrs.value(QStringLiteral("src"));
        }
        EXPECT_EQ(framesets, 1);
        EXPECT_EQ(sources.join(QLatin1Char(' ')).toStdString(), std::string(d.menuPage) + " Main.htm");
        EXPECT_EQ(mainSource.toStdString(), "Main.htm");
    }
}

TEST(TemplateData, SitePagesPointOnlyToFilesCopiedWithThem)
{
    // Whatever the user ticks, a copied page finds what it points to: the files copied always
    // and those of its own tick. Only the frame set points to the menu page. And every picture
    // is shown by a page copied with it.
    for (const SiteDesign& d : designs()) {
        const QString folder = QString::fromLatin1(d.folder);
        for (const QStringList& group : d.groups) {
            QSet<QString> reachable(d.groups.first().begin(), d.groups.first().end());
            reachable.unite(QSet<QString>(group.begin(), group.end()));
            QSet<QString> shown;
            for (const QString& file : group) {
                if (isPicture(file))
                    continue;
                SCOPED_TRACE((folder + QLatin1Char('/') + file).toStdString());
                QString fault;
                const QList<Tag> tags = tagsOf(readPage(folder + QLatin1Char('/') + file, &fault), &fault);
                ASSERT_EQ(fault.toStdString(), "");
                const QSet<QString> allowed = file == QLatin1String("Index.htm")
                                                  ? QSet<QString>(reachable).unite({QString::fromLatin1(d.menuPage)})
                                                  : reachable;
                for (const QString& target : localTargets(tags)) {
                    EXPECT_TRUE(allowed.contains(target)) << "points to " << target.toStdString();
                    shown.insert(target);
                }
            }
            for (const QString& file : group) {
                if (isPicture(file)) {
                    EXPECT_TRUE(shown.contains(file)) << folder.toStdString() << ": nothing shows " << file.toStdString();
                }
            }
        }
    }
}

TEST(TemplateData, SitePicturesAreSmallJpegsThatLoad)
{
    int pictures = 0;
    for (const SiteDesign& d : designs()) {
        for (const QStringList& group : d.groups) {
            for (const QString& file : group) {
                if (!isPicture(file))
                    continue;
                ++pictures;
                const QString path = kTemplates + QLatin1Char('/') + QString::fromLatin1(d.folder) + QLatin1Char('/') + file;
                SCOPED_TRACE(path.toStdString());
                EXPECT_LT(QFileInfo(path).size(), 80 * 1024);
                QImageReader reader(path);
                EXPECT_EQ(reader.format(), QByteArray("jpeg"));
                const QSize size = reader.size();
                EXPECT_GE(size.width(), 100);
                EXPECT_GE(size.height(), 100);
                EXPECT_LE(size.width(), 1024);
                EXPECT_LE(size.height(), 768);
                const QImage image = reader.read();
                ASSERT_FALSE(image.isNull()) << reader.errorString().toStdString();
                EXPECT_EQ(image.size(), size);
                // A drawn picture, not a blank: its corners and centre are not all one colour.
                const QSet<QRgb> samples = {image.pixel(2, 2), image.pixel(size.width() - 3, size.height() - 3),
                                            image.pixel(size.width() / 2, size.height() / 2)};
                EXPECT_GT(samples.size(), 1);
            }
        }
    }
    EXPECT_EQ(pictures, 5);
}

TEST(TemplateData, ThePageReaderFindsWhatItIsMeantToCatch)
{
    QString fault;
    // Comments, escaped text and the bodies of style blocks are not tags.
    const QList<Tag> tags = tagsOf(QStringLiteral("<!-- <img src=\"a.jpg\"> --><pre>&lt;frame src=\"b.htm\"&gt;</pre>"
                                                  "<style>a[href=\"c.htm\"] { }</style>"
                                                  "<a href='d.htm#top'>x</a><img src=e%20f.jpg alt=\"\">"
                                                  "<a href=\"https://example.com/\">x</a><a href=\"mailto:me@example.com\">x</a>"
                                                  "<a href=\"#here\">x</a><a href=\"/\">x</a><form action=\"g.htm?x=1\"></form>"),
                                   &fault);
    EXPECT_EQ(fault, QString());
    EXPECT_EQ(localTargets(tags), (QStringList{"d.htm", "e f.jpg", "g.htm"}));
    EXPECT_EQ(checkNesting(tags), QString());
    // Remote pictures and style sheets are found; a remote link to follow is fine.
    EXPECT_EQ(remoteResources(tagsOf(QStringLiteral("<img src=\"http://x/a.png\"><link rel=stylesheet href=//x/s.css>"
                                                    "<a href=\"https://x/\">x</a>"),
                                     &fault)),
              (QStringList{"http://x/a.png", "//x/s.css"}));
    // Faults in the markup.
    EXPECT_NE(checkNesting(tagsOf(QStringLiteral("<p><b>x</p></b>"), &fault)), QString());
    EXPECT_NE(checkNesting(tagsOf(QStringLiteral("<div>"), &fault)), QString());
    EXPECT_EQ(checkNesting(tagsOf(QStringLiteral("<svg><rect width=\"1\"/><path d=\"M0 0\" /></svg>"), &fault)), QString());
    fault.clear();
    tagsOf(QStringLiteral("<p>a < b</p>"), &fault);
    EXPECT_NE(fault, QString());
    fault.clear();
    tagsOf(QStringLiteral("<!-- open"), &fault);
    EXPECT_NE(fault, QString());
    // A wrong byte is caught as bad UTF-8.
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString decoded = utf8.decode(QByteArray("caf\xe9 page"));
    EXPECT_TRUE(decoded.contains(QChar::ReplacementCharacter));
    EXPECT_TRUE(utf8.hasError());
}
