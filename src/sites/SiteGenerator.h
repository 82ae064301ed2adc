#pragma once
#include "sites/SiteFiles.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

// The site generator without a window: from a title, a type and a few ticks it copies finished
// template pages into a new folder, writes the project file and the menu page that links the
// chosen pages. The site is a frame set: the template Index.htm frames the menu page and
// Main.htm.
namespace SiteGenerator {

enum class Type { Business, Personal, Custom };

// One tick of a site type: the files it copies (the page first, then its pictures) and the
// entry it adds to the menu page.
struct Page {
    QString tick;
    QStringList files;
    QString entry;
};
// The five ticks of each type that the generator reads, in the order the menu lists them.
const QList<Page>& pages(Type type);

// The menu page's starting text, which every run builds on.
QString defaultMenuPage();
// The whole menu page of a Business or Personal site; ticks in the order of pages(type).
QString menuPage(Type type, const QString& title, const QList<bool>& ticks);
// The menu page's file name in the site folder: MainMenu.htm or Bar.htm.
QString menuFile(Type type);
// What every site of the type gets besides its ticked pages, and which of those are listed.
QStringList fixedFiles(Type type);
QStringList listedFixedFiles(Type type);

// Kept from the system that stored locations with drive letters, where the drive root alone
// carried a closing separator and the step stripped it so that the site folder had one
// separator. Here the root "/" is the only location with a closing separator; every other
// text stands.
QString normaliseLocation(const QString& location);
// The new site's folder: the location, a separator and the title, as an absolute path.
QString siteFolder(const QString& location, const QString& title);

struct Request {
    SiteFiles::Details details;
    Type type = Type::Business;
    QString location;
    QList<bool> ticks;        // Business or Personal: one per page of pages(type)
    QStringList customFiles;  // Custom: the files to copy, full paths
    QString templates;        // the folder holding Business/ and Personal/
};

struct Outcome {
    bool ok = false;
    QString folder;
    QString detailsFile;  // the new SiteDetails.dat
    QString problem;      // why nothing (or not all) was made, for the user
};

// Makes the site. Nothing of the user's is ever overwritten: an existing folder, a missing
// template or custom file, or two custom files of one name stop the run before anything is
// made. `progress` is told 1 after the folder is made, 2 after the second tick, 3 after the
// last tick and 4 at the end (a Custom site reports nothing).
Outcome createSite(const Request& request, const std::function<void(int)>& progress = {});
}
