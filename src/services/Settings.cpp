#include "services/Settings.h"

#include <QDir>

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
}
