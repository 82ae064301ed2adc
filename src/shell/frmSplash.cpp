#include "shell/frmSplash.h"

#include "platform/App.h"
#include "platform/Look.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

namespace {
const QColor heading(52, 129, 211);
}

frmSplash::frmSplash(QWidget* parent) : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint)
{
    setFixedSize(480, 260);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 24, 28, 20);
    lblCompanyProduct = new QLabel(QStringLiteral("Velloro"), this);
    lblCompanyProduct->setObjectName(QStringLiteral("lblCompanyProduct"));
    lblProductName = new QLabel(this);
    lblProductName->setObjectName(QStringLiteral("lblProductName"));
    lblPlatform1 = new QLabel(QStringLiteral("for the Linux desktop"), this);
    lblPlatform1->setObjectName(QStringLiteral("lblPlatform1"));
    lblVersion = new QLabel(this);
    lblVersion->setObjectName(QStringLiteral("lblVersion"));
    Label1 = new QLabel(QStringLiteral("Loading ..."), this);
    Label1->setObjectName(QStringLiteral("Label1"));

    QFont big = font();
    big.setPointSize(26);
    big.setBold(true);
    lblProductName->setFont(big);
    layout->addWidget(lblCompanyProduct);
    layout->addWidget(lblProductName);
    layout->addWidget(lblPlatform1);
    layout->addStretch();
    layout->addWidget(lblVersion);
    layout->addWidget(Label1);
}

void frmSplash::Form_Load()
{
    lblVersion->setText(QStringLiteral("Version ") + App::versionNumber());
    lblProductName->setText(App::title());
    const QString colour = QStringLiteral("color: %1;").arg(Look::heading.name());
    for (QLabel* l : {lblCompanyProduct, lblPlatform1, Label1, lblProductName})
        l->setStyleSheet(colour);
    if (const QScreen* s = QGuiApplication::primaryScreen())
        move(s->availableGeometry().center() - rect().center());
}

void frmSplash::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.fillRect(rect(), Qt::white);
    // The shape: a band along the top and a frame round the window.
    p.fillRect(QRect(0, 0, width(), 10), heading);
    p.setPen(QPen(heading, 2));
    p.drawRect(rect().adjusted(1, 1, -1, -1));
}

void frmSplash::keyPressEvent(QKeyEvent*) { Unload(); }
void frmSplash::mousePressEvent(QMouseEvent*) { Unload(); }
