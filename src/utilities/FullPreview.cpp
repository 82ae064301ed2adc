#include "utilities/FullPreview.h"

#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/WebBrowser.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
const QString defaultLinkText = QStringLiteral("Smart Link Preview");
}

FullPreview::FullPreview(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("FullPreview"));
    setWindowTitle(QStringLiteral("Full Screen Preview"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setWindowState(Qt::WindowMaximized);
    resize(1024, 768);

    WebBrowser1 = Look::named(new WebBrowser(this), QStringLiteral("WebBrowser1"));
    linkpreview = Look::named(new QLabel(defaultLinkText, this), QStringLiteral("linkpreview"));
    linkpreview->setTextInteractionFlags(Qt::NoTextInteraction);
    SmartNetButton5 = Look::faceButton(QStringLiteral("SmartNetButton5"), QStringLiteral("Back"), this);
    SmartNetButton4 = Look::faceButton(QStringLiteral("SmartNetButton4"), QStringLiteral("Forward"), this);
    SmartNetButton1 = Look::faceButton(QStringLiteral("SmartNetButton1"), QStringLiteral("Close"), this);
    for (QPushButton* b : {SmartNetButton5, SmartNetButton4, SmartNetButton1})
        b->setAutoDefault(false);

    auto* bar = new QHBoxLayout;
    bar->addWidget(SmartNetButton5);
    bar->addWidget(SmartNetButton4);
    bar->addSpacing(12);
    bar->addWidget(linkpreview, 1);
    bar->addWidget(SmartNetButton1);
    auto* v = new QVBoxLayout(this);
    v->setContentsMargins(4, 4, 4, 4);
    v->addLayout(bar);
    // The browser takes all the room the window has, at any size.
    v->addWidget(WebBrowser1, 1);

    connect(SmartNetButton5, &QPushButton::clicked, this, Event([this] { WebBrowser1->GoBack(); }));
    connect(SmartNetButton4, &QPushButton::clicked, this, Event([this] { WebBrowser1->GoForward(); }));
    connect(SmartNetButton1, &QPushButton::clicked, this, Event([this] { hide(); }));
    connect(WebBrowser1, &WebBrowser::StatusTextChange, this,
            [this](const QString& text) { linkpreview->setText(linkPreviewText(text)); });
}

void FullPreview::Form_Load() { linkpreview->setText(defaultLinkText); }

void FullPreview::showEvent(QShowEvent* e)
{
    linkpreview->setText(defaultLinkText);
    QDialog::showEvent(e);
}
