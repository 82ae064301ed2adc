#include "documents/FileFacts.h"

#include "documents/DocumentWindow.h"
#include "platform/Look.h"

#include <QDateTime>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>

namespace {
QString yesNo(bool on) { return on ? QStringLiteral("True") : QStringLiteral("False"); }
}

FileFacts::FileFacts(QWidget* parent) : QWidget(parent)
{
    auto* form = new QFormLayout(this);
    auto detail = [&](const QString& name, const QString& label) {
        auto* l = Look::named(new QLabel(this), name);
        l->setTextInteractionFlags(Qt::TextSelectableByMouse);
        form->addRow(label, l);
        return l;
    };
    Filenae = detail(QStringLiteral("Filenae"), QStringLiteral("File Name :"));
    Location = detail(QStringLiteral("Location"), QStringLiteral("Location :"));
    Extension = detail(QStringLiteral("Extension"), QStringLiteral("Extension :"));
    Filesize = detail(QStringLiteral("Filesize"), QStringLiteral("Size :"));
    Modified = detail(QStringLiteral("Modified"), QStringLiteral("Modified :"));
    datecreated = detail(QStringLiteral("datecreated"), QStringLiteral("Created :"));
    Readonly = detail(QStringLiteral("Readonly"), QStringLiteral("Read Only :"));
    Filehidden = detail(QStringLiteral("Filehidden"), QStringLiteral("Hidden :"));
    Location->setWordWrap(true);
}

void FileFacts::fill(DocumentWindow* doc)
{
    const QString path = doc->tempaddress()->text();
    const QFileInfo info(path);
    if (path.isEmpty() || !info.exists())
        return;
    Filenae->setText(doc->Caption());
    Location->setText(path);
    Extension->setText(info.suffix().toUpper());
    Filesize->setText(QString::number(info.size()) + QStringLiteral(" Bytes"));
    const QLocale locale;
    Modified->setText(locale.toString(info.lastModified(), QLocale::ShortFormat));
    const QDateTime born = info.birthTime().isValid() ? info.birthTime() : info.metadataChangeTime();
    datecreated->setText(locale.toString(born, QLocale::ShortFormat));
    Readonly->setText(yesNo(!info.isWritable()));
    Filehidden->setText(yesNo(info.isHidden()));
}

void FileFacts::clear()
{
    for (QLabel* l : {Filenae, Location, Extension, Filesize, Modified, datecreated, Readonly, Filehidden})
        l->clear();
}
