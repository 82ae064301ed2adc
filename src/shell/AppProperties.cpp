#include "shell/AppProperties.h"

#include "platform/App.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "services/Settings.h"
#include "shell/frmMain.h"

#include <QDir>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

QString propertiesPath() { return App::userFile(QStringLiteral("Options/Properties.dat")); }

AppProperties::AppProperties(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Properties ...."));
    auto* layout = new QVBoxLayout(this);
    Label1 = new QLabel(QStringLiteral("Action ..."), this);
    Label1->setObjectName(QStringLiteral("Label1"));
    Bar = new QProgressBar(this);
    Bar->setObjectName(QStringLiteral("Bar"));
    Bar->setRange(0, 4);
    Bar->setValue(0);
    layout->addWidget(Label1);
    layout->addWidget(Bar);
}

void AppProperties::SaveProperties()
{
    Label1->setText(QStringLiteral("Status :: Saving Data ..."));
    const QString path = propertiesPath();
    TextFiles::createIfMissing(path);
    Bar->setValue(0);
    Bar->setValue(Bar->value() + 1);  // the open dialog's three values
    Bar->setValue(Bar->value() + 1);  // the save dialog's three values
    frmMain* main = frmMain::instance();
    Bar->setValue(Bar->value() + 1);  // the two widths
    const QString text = PropertiesFile::text(Settings::folders(), main->SideholderWidth(), main->RightHolderWidth());
    if (!TextFiles::writeText(path, text))
        throw RuntimeError::pathFileAccess(QStringLiteral("SaveProperties"));
    Bar->setValue(Bar->value() + 1);
    Label1->setText(QStringLiteral("Status :: Saved"));
}

void AppProperties::LoadProperties()
{
    ResumeNext resume;
    const QString path = propertiesPath();
    if (!TextFiles::exists(path)) {
        resume([this] { SaveProperties(); });
        return;
    }
    const PropertiesRecord r = PropertiesFile::parse(TextFiles::readText(path));
    // A folder that no longer exists is skipped.
    auto keep = [](QString& target, const QString& value) {
        if (!value.isEmpty() && QDir(value).exists())
            target = value;
    };
    PropertiesRecord& folders = Settings::folders();
    keep(folders.openDir, r.openDir);
    keep(folders.openDrive, r.openDrive);
    keep(folders.openFileDir, r.openFileDir);
    keep(folders.saveDir, r.saveDir);
    keep(folders.saveDrive, r.saveDrive);
    keep(folders.saveFileDir, r.saveFileDir);
    frmMain* main = frmMain::instance();
    resume([&] { main->foldSide(PropertiesFile::sideFolded(r.sideWidth)); });
    resume([&] { main->foldRight(PropertiesFile::rightFolded(r.rightWidth)); });
}
