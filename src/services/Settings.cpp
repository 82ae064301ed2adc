#include "services/Settings.h"

#include "platform/App.h"

#include <QDir>
#include <QSettings>

namespace {
DetailsRecord& detailsValue()
{
    static DetailsRecord r = DetailsFile::designValues();
    return r;
}

PropertiesRecord makeFolders()
{
    PropertiesRecord r;
    r.openDir = r.openFileDir = r.saveDir = r.saveFileDir = QDir::homePath();
    r.openDrive = r.saveDrive = QDir::rootPath();
    return r;
}

}

namespace Settings {
const DetailsRecord& details() { return detailsValue(); }
void setDetails(const DetailsRecord& r) { detailsValue() = r; }
PropertiesRecord& folders()
{
    static PropertiesRecord r = makeFolders();
    return r;
}

QString online(const QString& key, const QString& fallback)
{
    const QSettings config(App::path() + QStringLiteral("/Options/Online.ini"), QSettings::IniFormat);
    return config.value(QStringLiteral("Online/") + key, fallback).toString();
}

QString updateServer()
{
    QString server = online(QStringLiteral("UpdateServer"), QStringLiteral("https://velloro.example"));
    while (server.endsWith(QLatin1Char('/')))
        server.chop(1);
    return server;
}

QString feedbackAddress() { return online(QStringLiteral("FeedbackAddress"), QStringLiteral("feedback@velloro.example")); }
}
