#include "shell/AboutFORM.h"

#include "platform/App.h"
#include "platform/Look.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

QString versionCaption()
{
    return form<AboutFORM>()->versionname->text();
}

AboutFORM::AboutFORM(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("About ") + App::title());
    auto* layout = new QVBoxLayout(this);
    auto* product = new QLabel(App::title(), this);
    product->setObjectName(QStringLiteral("lblProductName"));
    QFont f = product->font();
    f.setPointSize(f.pointSize() + 6);
    f.setBold(true);
    product->setFont(f);
    product->setStyleSheet(QStringLiteral("color: %1;").arg(Look::heading.name()));
    versionname = new QLabel(App::versionLine(), this);
    versionname->setObjectName(QStringLiteral("versionname"));
    auto* blurb = new QLabel(QStringLiteral("A desktop authoring tool for web pages."), this);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::hide);
    layout->addWidget(product);
    layout->addWidget(versionname);
    layout->addWidget(blurb);
    layout->addWidget(buttons);
}
