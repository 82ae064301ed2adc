// The site generator: the menu page byte for byte, the folder and the project file it makes,
// and the runs it refuses without touching anything.
#include "common/Utf8.h"
#include "sites/SiteGenerator.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using SiteGenerator::Type;

namespace {

// The menu page's starting text, line by line as the site wizard keeps it.
const QString start = u("<html>\r\n\r\n<head>\r\n\r\n<title>Main \r\nMenu</title>\r\n<style>\r\n"
                        "A:link\t\t\r\n{color: #ffffff;\r\n") +
                      QString(18, QLatin1Char(' ')) +
                      u("\r\ntext-decoration: none}\r\n\r\n"
                        "A:visited\t{color: \r\n#ffffff;\r\n") +
                      QString(17, QLatin1Char(' ')) +
                      u("\r\ntext-decoration: none}\r\n\r\n"
                        "A:active\t{color: \r\n#ffffff;\r\n\r\n\t\t \r\ntext-decoration: none}\r\n\r\n"
                        "A:hover\t\t\r\n{color: #6666cc;\r\n\r\n\t\t \r\ntext-decoration: none}\r\n"
                        "</style>\r\n</head>\r\n\r\n<body \r\nbgcolor=\"#000033\" \r\ntopmargin=\"0\">");
const QString businessHead = u("\r\n<p Align=center ><b><font color=#FFFFFF face=Arial size=6>Acme &amp; Sons</font></b></p>\r\n"
                               "<p><font color=#6666cc><i>Menu >> </font><i>");
const QString personalHead = u("\r\n<p Align=left ><b><font color=#FFFFFF face=Arial size=6>MENU</font></b></p>\r\n"
                               "<p><i>Menu >> </i><b><br><hr color=#0033CC align=left width=100>");
const QString tail = u("\r\n\r\n</body>\r\n</html>");
const QString services = u("   |   <font color=#FFFFFF>S<a href=Services.htm target=main>ervices</a> </font>\r\n");
const QString portfolio = u("   |   <font color=#FFFFFF>P<a href=Portfolio.htm target=main>ortfolio</a> </font>\r\n");
const QString quote = u("   |   <font color=#FFFFFF>P<a href=Quote.htm target=main>rice/Quote</a> </font>\r\n");
const QString aboutUs = u("   |   <font color=#FFFFFF>A<a href=About.htm target=main>bout Us</a> </font>\r\n");
const QString contactUs = u("   |   <font color=#FFFFFF>C<a href=Contact.htm target=main>ontact Us</a> </font>\r\n");
const QString hr = u("</a> </font><br><hr color=#0033CC align=left width=100>\r\n");
const QString pictures = u("<font color=#FFFFFF>P<a href=Pictures.htm target=main>ictures") + hr;
const QString about = u("<font color=#FFFFFF>A<a href=About.htm target=main>bout") + hr;
const QString hobbies = u("<font color=#FFFFFF>H<a href=Hobbies.htm target=main>obbies") + hr;
const QString links = u("<font color=#FFFFFF>L<a href=Links.htm target=main>inks") + hr;
const QString contactMe = u("<font color=#FFFFFF>C<a href=Contact.htm target=main>ontact Me") + hr;

const QString templates = QStringLiteral(VELLORO_SOURCE_DATA) + u("/Templates/Advanced/Sites");

QByteArray readAll(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<missing>");
}

QStringList filesIn(const QString& folder)
{
    QStringList names = QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    return names;
}

SiteGenerator::Request request(Type type, const QString& location, QList<bool> ticks)
{
    SiteGenerator::Request r;
    r.details = {u("Acme"), u("Ann"), u("26/11/2026"), u("ann@example.org")};
    r.type = type;
    r.location = location;
    r.ticks = ticks;
    r.templates = templates;
    return r;
}

QByteArray detailsOf(const QString& folder, const QStringList& listed, const QByteArray& title = "Acme")
{
    QByteArray text = "'''Start Project Details'''\r\n" + title + "\r\nAnn\r\n26/11/2026\r\nann@example.org\r\n'''End Of Details'''\r\n";
    for (const QString& name : listed)
        text += (folder + u("/") + name).toUtf8() + "\r\n";
    return text;
}
}

TEST(SiteGenerator, StartingTextOfTheMenuPage)
{
    EXPECT_EQ(SiteGenerator::defaultMenuPage(), start);
}

TEST(SiteGenerator, MenuPageOfEachTypeWithNoneSomeAndAllTicks)
{
    const QString title = u("Acme &amp; Sons");
    const struct {
        const char* what;
        Type type;
        QList<bool> ticks;
        QString expected;
    } cases[] = {
        {"business, no tick: a menu with no links", Type::Business, {false, false, false, false, false},
         start + businessHead + tail},
        {"business, some", Type::Business, {true, false, true, false, true}, start + businessHead + services + quote + contactUs + tail},
        {"business, all in table order", Type::Business, {true, true, true, true, true},
         start + businessHead + services + portfolio + quote + aboutUs + contactUs + tail},
        {"personal, no tick; the title is not in it", Type::Personal, {false, false, false, false, false},
         start + personalHead + tail},
        {"personal, some", Type::Personal, {false, true, false, true, false}, start + personalHead + about + links + tail},
        {"personal, all", Type::Personal, {true, true, true, true, true},
         start + personalHead + pictures + about + hobbies + links + contactMe + tail},
    };
    for (const auto& c : cases)
        EXPECT_EQ(SiteGenerator::menuPage(c.type, title, c.ticks), c.expected) << c.what;
}

TEST(SiteGenerator, LocationAndFolder)
{
    EXPECT_EQ(SiteGenerator::normaliseLocation(u("/")), u("")) << "the root alone loses its separator";
    for (const char* other : {"/home/ann", "/home/ann/", "c:\\", "", "//"})
        EXPECT_EQ(SiteGenerator::normaliseLocation(u(other)), u(other)) << other;
    EXPECT_EQ(SiteGenerator::siteFolder(u("/"), u("Acme")), u("/Acme")) << "one separator";
    EXPECT_EQ(SiteGenerator::siteFolder(u("/srv/www"), u("Acme")), u("/srv/www/Acme"));
    EXPECT_EQ(SiteGenerator::siteFolder(u("/srv/www/"), u("Acme")), u("/srv/www/Acme"));
    EXPECT_TRUE(QFileInfo(SiteGenerator::siteFolder(u("relative"), u("Acme"))).isAbsolute())
        << "the project file holds absolute paths";
}

TEST(SiteGenerator, BusinessAndPersonalSites)
{
    QTemporaryDir dir;
    const struct {
        const char* title;
        Type type;
        QList<bool> ticks;
        QStringList files;   // in the folder
        QStringList listed;  // in SiteDetails.dat, in order
        QString menuName;
    } cases[] = {
        {"b-none", Type::Business, {false, false, false, false, false},
         {u("Index.htm"), u("Main.htm"), u("MainMenu.htm"), u("SiteDetails.dat")},
         {u("Index.htm"), u("Main.htm"), u("MainMenu.htm")}, u("MainMenu.htm")},
        {"b-all", Type::Business, {true, true, true, true, true},
         {u("About.htm"), u("Contact.htm"), u("Index.htm"), u("Main.htm"), u("MainMenu.htm"), u("Portfolio.htm"),
          u("Quote.htm"), u("Services.htm"), u("SiteDetails.dat")},
         {u("Index.htm"), u("Main.htm"), u("Services.htm"), u("Portfolio.htm"), u("Quote.htm"), u("About.htm"),
          u("Contact.htm"), u("MainMenu.htm")},
         u("MainMenu.htm")},
        {"p-some", Type::Personal, {true, false, true, false, false},
         {u("Bar.htm"), u("CRIBGOCH.jpg"), u("Hobbies.htm"), u("Index.htm"), u("Main.htm"), u("Pictures.htm"),
          u("SiteDetails.dat"), u("climbleft.jpg"), u("picmain.jpg"), u("snow21.jpg"), u("snow22.jpg")},
         {u("Index.htm"), u("Main.htm"), u("Pictures.htm"), u("Hobbies.htm"), u("Bar.htm")}, u("Bar.htm")},
        {"p-none", Type::Personal, {false, false, false, false, false},
         {u("Bar.htm"), u("Index.htm"), u("Main.htm"), u("SiteDetails.dat"), u("climbleft.jpg")},
         {u("Index.htm"), u("Main.htm"), u("Bar.htm")}, u("Bar.htm")},
    };
    for (const auto& c : cases) {
        SiteGenerator::Request r = request(c.type, dir.path(), c.ticks);
        r.details.title = u(c.title);
        QList<int> steps;
        const SiteGenerator::Outcome o = SiteGenerator::createSite(r, [&](int v) { steps.append(v); });
        ASSERT_TRUE(o.ok) << c.title << ": " << o.problem.toStdString();
        const QString folder = dir.path() + u("/") + u(c.title);
        EXPECT_EQ(o.folder, folder);
        EXPECT_EQ(o.detailsFile, folder + u("/SiteDetails.dat"));
        EXPECT_EQ(filesIn(folder), c.files) << c.title;
        EXPECT_EQ(readAll(o.detailsFile), detailsOf(folder, c.listed, c.title));
        EXPECT_EQ(QString::fromUtf8(readAll(folder + u("/") + c.menuName)), SiteGenerator::menuPage(c.type, u(c.title), c.ticks));
        EXPECT_EQ(steps, (QList<int>{1, 2, 3, 4})) << c.title;
        // Pages and pictures are the templates' own bytes.
        for (const QString& name : c.files) {
            if (name != c.menuName && name != u("SiteDetails.dat")) {
                EXPECT_EQ(readAll(folder + u("/") + name),
                          readAll(templates + (c.type == Type::Business ? u("/Business/") : u("/Personal/")) + name))
                    << name.toStdString();
            }
        }
    }
}

TEST(SiteGenerator, CustomSiteCopiesTheChosenFiles)
{
    QTemporaryDir dir;
    QDir().mkpath(dir.filePath(u("mine/pics")));
    QFile a(dir.filePath(u("mine/home page.htm")));
    ASSERT_TRUE(a.open(QIODevice::WriteOnly));
    a.write("<p>home</p>");
    a.close();
    QFile b(dir.filePath(u("mine/pics/logo.gif")));
    ASSERT_TRUE(b.open(QIODevice::WriteOnly));
    b.write("GIF89a");
    b.close();
    SiteGenerator::Request r = request(Type::Custom, dir.filePath(u("out")), {});
    QDir().mkpath(r.location);
    r.customFiles = {a.fileName(), b.fileName()};
    QList<int> steps;
    const SiteGenerator::Outcome o = SiteGenerator::createSite(r, [&](int v) { steps.append(v); });
    ASSERT_TRUE(o.ok) << o.problem.toStdString();
    const QString folder = r.location + u("/Acme");
    EXPECT_EQ(filesIn(folder), (QStringList{u("SiteDetails.dat"), u("home page.htm"), u("logo.gif")}));
    EXPECT_EQ(readAll(o.detailsFile), detailsOf(folder, {u("home page.htm"), u("logo.gif")}));
    EXPECT_EQ(readAll(folder + u("/logo.gif")), QByteArray("GIF89a"));
    EXPECT_TRUE(steps.isEmpty());

    r.details.title = u("Empty");
    ASSERT_TRUE(SiteGenerator::createSite({r.details, Type::Custom, r.location, {}, {}, templates}).ok);
    EXPECT_EQ(readAll(r.location + u("/Empty/SiteDetails.dat")), detailsOf(r.location + u("/Empty"), {}, "Empty"));
}

TEST(SiteGenerator, RefusedRunsTouchNothing)
{
    QTemporaryDir dir;
    // An existing folder keeps its files as they were.
    QDir().mkpath(dir.filePath(u("Acme")));
    QFile mine(dir.filePath(u("Acme/Index.htm")));
    ASSERT_TRUE(mine.open(QIODevice::WriteOnly));
    mine.write("mine");
    mine.close();
    SiteGenerator::Outcome o = SiteGenerator::createSite(request(Type::Business, dir.path(), {true, true, true, true, true}));
    EXPECT_FALSE(o.ok);
    EXPECT_TRUE(o.problem.contains(u("already exists"))) << o.problem.toStdString();
    EXPECT_EQ(readAll(dir.filePath(u("Acme/Index.htm"))), QByteArray("mine"));
    EXPECT_EQ(filesIn(dir.filePath(u("Acme"))), QStringList{u("Index.htm")});

    // A template that is missing: no folder is made.
    QTemporaryDir broken;
    QDir().mkpath(broken.filePath(u("Personal")));
    for (const char* name : {"Index.htm", "Main.htm", "climbleft.jpg", "Pictures.htm", "picmain.jpg"})
        QFile::copy(templates + u("/Personal/") + u(name), broken.filePath(u("Personal/") + u(name)));
    SiteGenerator::Request r = request(Type::Personal, dir.path(), {true, false, false, false, false});
    r.details.title = u("Trip");
    r.templates = broken.path();
    o = SiteGenerator::createSite(r);
    EXPECT_FALSE(o.ok);
    EXPECT_TRUE(o.problem.contains(u("CRIBGOCH.jpg"))) << o.problem.toStdString();
    EXPECT_FALSE(QFileInfo::exists(dir.filePath(u("Trip"))));
    r.ticks = {false, true, false, false, false};  // About.htm is not there either
    EXPECT_FALSE(SiteGenerator::createSite(r).ok);
    r.ticks = {false, false, false, false, false};
    EXPECT_TRUE(SiteGenerator::createSite(r).ok) << "what is there is enough";

    // Custom: a file that is gone, two files of one name.
    SiteGenerator::Request c = request(Type::Custom, dir.path(), {});
    c.details.title = u("Own");
    c.customFiles = {dir.filePath(u("Acme/Index.htm")), dir.filePath(u("gone.htm"))};
    o = SiteGenerator::createSite(c);
    EXPECT_FALSE(o.ok);
    EXPECT_TRUE(o.problem.contains(u("gone.htm")));
    c.customFiles = {dir.filePath(u("Acme/Index.htm")), dir.filePath(u("Trip/Index.htm"))};
    o = SiteGenerator::createSite(c);
    EXPECT_FALSE(o.ok);
    EXPECT_TRUE(o.problem.contains(u("Index.htm")));
    EXPECT_FALSE(QFileInfo::exists(dir.filePath(u("Own"))));

    // No title; a location that cannot hold a folder.
    c.customFiles.clear();
    c.details.title.clear();
    EXPECT_FALSE(SiteGenerator::createSite(c).ok);
    c.details.title = u("Own");
    c.location = dir.filePath(u("no/such/place"));
    o = SiteGenerator::createSite(c);
    EXPECT_FALSE(o.ok);
    EXPECT_TRUE(o.problem.contains(u("Could not make the folder")));
    EXPECT_FALSE(QFileInfo::exists(dir.filePath(u("no"))));
}
