#include "sites/SiteGenerator.h"

#include "platform/TextFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

using TextFiles::crlf;

namespace SiteGenerator {

namespace {
QString businessEntry(const QString& file, const QString& first, const QString& tail)
{
    return QStringLiteral("   |   <font color=#FFFFFF>") + first + QStringLiteral("<a href=") + file +
           QStringLiteral(" target=main>") + tail + QStringLiteral("</a> </font>");
}

QString personalEntry(const QString& file, const QString& first, const QString& tail)
{
    return QStringLiteral("<font color=#FFFFFF>") + first + QStringLiteral("<a href=") + file +
           QStringLiteral(" target=main>") + tail +
           QStringLiteral("</a> </font><br><hr color=#0033CC align=left width=100>");
}

QString typeFolder(Type type)
{
    return type == Type::Business ? QStringLiteral("Business") : QStringLiteral("Personal");
}

// Copies files of a template folder into the site folder, stopping at the first failure.
bool copyAll(const QString& from, const QStringList& names, const QString& to, QString* problem)
{
    for (const QString& name : names)
        if (!QFile::copy(from + QLatin1Char('/') + name, to + QLatin1Char('/') + name)) {
            *problem = QStringLiteral("Could not copy %1 into %2.").arg(name, to);
            return false;
        }
    return true;
}

Outcome stop(Outcome o, const QString& problem)
{
    o.problem = problem;
    return o;
}

}

const QList<Page>& pages(Type type)
{
    static const QList<Page> business = {
        {QStringLiteral("BCheck2"), {QStringLiteral("Services.htm")},
         businessEntry(QStringLiteral("Services.htm"), QStringLiteral("S"), QStringLiteral("ervices"))},
        {QStringLiteral("BCheck3"), {QStringLiteral("Portfolio.htm")},
         businessEntry(QStringLiteral("Portfolio.htm"), QStringLiteral("P"), QStringLiteral("ortfolio"))},
        {QStringLiteral("BCheck4"), {QStringLiteral("Quote.htm")},
         businessEntry(QStringLiteral("Quote.htm"), QStringLiteral("P"), QStringLiteral("rice/Quote"))},
        {QStringLiteral("BCheck5"), {QStringLiteral("About.htm")},
         businessEntry(QStringLiteral("About.htm"), QStringLiteral("A"), QStringLiteral("bout Us"))},
        {QStringLiteral("BCheck6"), {QStringLiteral("Contact.htm")},
         businessEntry(QStringLiteral("Contact.htm"), QStringLiteral("C"), QStringLiteral("ontact Us"))},
    };
    static const QList<Page> personal = {
        {QStringLiteral("PCheck2"), {QStringLiteral("Pictures.htm"), QStringLiteral("picmain.jpg"), QStringLiteral("CRIBGOCH.jpg")},
         personalEntry(QStringLiteral("Pictures.htm"), QStringLiteral("P"), QStringLiteral("ictures"))},
        {QStringLiteral("PCheck3"), {QStringLiteral("About.htm")},
         personalEntry(QStringLiteral("About.htm"), QStringLiteral("A"), QStringLiteral("bout"))},
        {QStringLiteral("PCheck4"), {QStringLiteral("Hobbies.htm"), QStringLiteral("snow21.jpg"), QStringLiteral("snow22.jpg")},
         personalEntry(QStringLiteral("Hobbies.htm"), QStringLiteral("H"), QStringLiteral("obbies"))},
        {QStringLiteral("PCheck6"), {QStringLiteral("Links.htm")},
         personalEntry(QStringLiteral("Links.htm"), QStringLiteral("L"), QStringLiteral("inks"))},
        {QStringLiteral("PCheck7"), {QStringLiteral("Contact.htm")},
         personalEntry(QStringLiteral("Contact.htm"), QStringLiteral("C"), QStringLiteral("ontact Me"))},
    };
    return type == Type::Business ? business : personal;
}

QString defaultMenuPage()
{
    static const QStringList lines = {
        QStringLiteral("<html>"), QString(), QStringLiteral("<head>"), QString(),
        QStringLiteral("<title>Main "), QStringLiteral("Menu</title>"), QStringLiteral("<style>"),
        QStringLiteral("A:link\t\t"), QStringLiteral("{color: #ffffff;"), QString(18, QLatin1Char(' ')),
        QStringLiteral("text-decoration: none}"), QString(),
        QStringLiteral("A:visited\t{color: "), QStringLiteral("#ffffff;"), QString(17, QLatin1Char(' ')),
        QStringLiteral("text-decoration: none}"), QString(),
        QStringLiteral("A:active\t{color: "), QStringLiteral("#ffffff;"), QString(), QStringLiteral("\t\t "),
        QStringLiteral("text-decoration: none}"), QString(),
        QStringLiteral("A:hover\t\t"), QStringLiteral("{color: #6666cc;"), QString(), QStringLiteral("\t\t "),
        QStringLiteral("text-decoration: none}"), QStringLiteral("</style>"), QStringLiteral("</head>"), QString(),
        QStringLiteral("<body "), QStringLiteral("bgcolor=\"#000033\" "), QStringLiteral("topmargin=\"0\">"),
    };
    return lines.join(crlf);
}

QString menuPage(Type type, const QString& title, const QList<bool>& ticks)
{
    QString page = defaultMenuPage() + crlf;
    if (type == Type::Business)
        page += QStringLiteral("<p Align=center ><b><font color=#FFFFFF face=Arial size=6>") + title +
                QStringLiteral("</font></b></p>") + crlf + QStringLiteral("<p><font color=#6666cc><i>Menu >> </font><i>");
    else
        page += QStringLiteral("<p Align=left ><b><font color=#FFFFFF face=Arial size=6>MENU</font></b></p>") + crlf +
                QStringLiteral("<p><i>Menu >> </i><b><br><hr color=#0033CC align=left width=100>");
    const QList<Page>& list = pages(type);
    for (int i = 0; i < list.size(); ++i)
        if (i < ticks.size() && ticks[i])
            page += list[i].entry + crlf;
    return page + crlf + crlf + QStringLiteral("</body>") + crlf + QStringLiteral("</html>");
}

QString menuFile(Type type)
{
    return type == Type::Business ? QStringLiteral("MainMenu.htm") : QStringLiteral("Bar.htm");
}

QStringList listedFixedFiles(Type) { return {QStringLiteral("Index.htm"), QStringLiteral("Main.htm")}; }

QStringList fixedFiles(Type type)
{
    QStringList files = listedFixedFiles(type);
    if (type == Type::Personal)
        files.append(QStringLiteral("climbleft.jpg"));
    return files;
}

QString normaliseLocation(const QString& location)
{
    return location == QLatin1String("/") ? QString() : location;
}

QString siteFolder(const QString& location, const QString& title)
{
    return QDir::cleanPath(QFileInfo(normaliseLocation(location) + QLatin1Char('/') + title).absoluteFilePath());
}

Outcome createSite(const Request& r, const std::function<void(int)>& progress)
{
    auto report = [&](int value) {
        if (progress)
            progress(value);
    };
    Outcome o;
    o.folder = siteFolder(r.location, r.details.title);
    o.detailsFile = o.folder + QLatin1Char('/') + SiteFiles::detailsName;

    // Everything is checked before the folder is made, so a refused run leaves no trace.
    if (r.details.title.isEmpty())
        return stop(o, QStringLiteral("The site needs a title. Nothing was written."));
    if (QFileInfo::exists(o.folder))
        return stop(o, QStringLiteral("The folder %1 already exists. Nothing was written: choose another site title or location.")
                           .arg(o.folder));
    const QString from = r.templates + QLatin1Char('/') + typeFolder(r.type);
    QStringList needed;
    if (r.type == Type::Custom) {
        QSet<QString> names;
        for (const QString& path : r.customFiles) {
            const QFileInfo info(path);
            if (!info.isFile())
                return stop(o, QStringLiteral("The file %1 is not there. Nothing was written.").arg(path));
            if (names.contains(info.fileName()))
                return stop(o, QStringLiteral("Two files are named %1: a site folder holds one file of a name. Nothing was written.")
                                   .arg(info.fileName()));
            names.insert(info.fileName());
        }
    } else {
        needed = fixedFiles(r.type);
        const QList<Page>& list = pages(r.type);
        for (int i = 0; i < list.size(); ++i)
            if (i < r.ticks.size() && r.ticks[i])
                needed += list[i].files;
        for (const QString& name : needed)
            if (!QFileInfo(from + QLatin1Char('/') + name).isFile())
                return stop(o, QStringLiteral("The template file %1 is missing. Nothing was written.")
                                   .arg(QDir::toNativeSeparators(from + QLatin1Char('/') + name)));
    }

    if (!QDir().mkdir(o.folder))
        return stop(o, QStringLiteral("Could not make the folder %1. Nothing was written.").arg(o.folder));

    QString details = SiteFiles::header(r.details);
    auto list = [&](const QString& name) { details += SiteFiles::pathLine(o.folder + QLatin1Char('/') + name); };

    if (r.type == Type::Custom) {
        for (const QString& path : r.customFiles) {
            const QString name = QFileInfo(path).fileName();
            if (!QFile::copy(path, o.folder + QLatin1Char('/') + name))
                return stop(o, QStringLiteral("Could not copy %1 into %2.").arg(path, o.folder));
            list(name);
        }
    } else {
        report(1);
        if (!copyAll(from, fixedFiles(r.type), o.folder, &o.problem))
            return o;
        for (const QString& name : listedFixedFiles(r.type))
            list(name);
        const QList<Page>& pageList = pages(r.type);
        for (int i = 0; i < pageList.size(); ++i) {
            if (i < r.ticks.size() && r.ticks[i]) {
                if (!copyAll(from, pageList[i].files, o.folder, &o.problem))
                    return o;
                list(pageList[i].files.first());
            }
            if (i == 1)
                report(2);
        }
        report(3);
        list(menuFile(r.type));
        QString error;
        if (!TextFiles::writeBytes(o.folder + QLatin1Char('/') + menuFile(r.type),
                                   TextFiles::encode(menuPage(r.type, r.details.title, r.ticks)), &error))
            return stop(o, QStringLiteral("Could not write %1: %2").arg(menuFile(r.type), error));
    }
    QString error;
    if (!TextFiles::writeBytes(o.detailsFile, TextFiles::encode(details), &error))
        return stop(o, QStringLiteral("Could not write %1: %2").arg(SiteFiles::detailsName, error));
    if (r.type != Type::Custom)
        report(4);
    o.ok = true;
    return o;
}
}
