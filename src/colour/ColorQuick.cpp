#include "colour/ColorQuick.h"

#include "colour/ColourFace.h"
#include "colour/ColourMixing.h"
#include "colour/ColourText.h"
#include "documents/Insertion.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/RuntimeError.h"
#include "services/Commands.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int columns = 8;
}

ColorQuick::ColorQuick(QWidget* parent) : QWidget(parent, Qt::Tool | Qt::FramelessWindowHint)
{
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(3, 3, 3, 3);
    outer->setSpacing(3);
    setAutoFillBackground(true);

    // The banner: the heading colour, and the handle the window is moved by.
    auto* banner = Look::named(new QFrame(this), QStringLiteral("banner"));
    banner->setAutoFillBackground(true);
    QPalette p = banner->palette();
    p.setColor(QPalette::Window, Look::heading);
    banner->setPalette(p);
    banner->setCursor(Qt::SizeAllCursor);
    auto* bannerRow = new QHBoxLayout(banner);
    bannerRow->setContentsMargins(4, 2, 2, 2);
    bannerRow->addStretch();
    SmartNetButton65 = Look::faceButton(QStringLiteral("SmartNetButton65"), QStringLiteral("Colour Finder"), banner);
    bannerRow->addWidget(SmartNetButton65);
    outer->addWidget(banner);

    auto* grid = new QGridLayout;
    grid->setSpacing(2);
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.8);
    for (int n = 1; n <= int(SmartNetButton.size()); ++n) {
        auto* b = Look::named(new QPushButton(this), QStringLiteral("SmartNetButton%1").arg(n));
        b->setFont(small);
        b->setFocusPolicy(Qt::NoFocus);
        b->setMinimumSize(58, 20);
        SmartNetButton[n - 1] = b;
        grid->addWidget(b, (n - 1) / columns, (n - 1) % columns);
        connect(b, &QPushButton::clicked, this, Event([this, n] { colour_Click(n); }));
    }
    outer->addLayout(grid);
    connect(SmartNetButton65, &QPushButton::clicked, this, Event([this] { SmartNetButton65_Click(); }));
}

void ColorQuick::Form_Load()
{
    // The faces in one pass: each button's colour is its own text read as RGB, with the face
    // colour of the look as its second colour (the edge under the pointer).
    for (int n = 1; n <= int(SmartNetButton.size()); ++n) {
        const QString text = QString::fromLatin1(ColourMixing::quickColours[n - 1]);
        const int colour = ColourText::toPlatformValue(text, 0);
        QPushButton* b = SmartNetButton[n - 1];
        b->setText(text);
        b->setToolTip(text);
        setColourFace(b, colour);
    }
}

void ColorQuick::colour_Click(int n)
{
    const QString text = ColourMixing::quickInsertion(n);
    ResumeNext()([&text] { InsertAtCaret(text); });
}

void ColorQuick::SmartNetButton65_Click()
{
    showForm(QStringLiteral("cfinderform"));
    hide();
}

bool ColorQuick::event(QEvent* e)
{
    if (e->type() == QEvent::WindowDeactivate)
        hide();
    return QWidget::event(e);
}

void ColorQuick::mousePressEvent(QMouseEvent* e)
{
    if (e->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(e);
    dragging = true;
    grabOffset = e->globalPosition().toPoint() - frameGeometry().topLeft();
}

void ColorQuick::mouseMoveEvent(QMouseEvent* e)
{
    if (dragging && (e->buttons() & Qt::LeftButton))
        move(e->globalPosition().toPoint() - grabOffset);
}

void ColorQuick::mouseReleaseEvent(QMouseEvent* e)
{
    dragging = false;
    QWidget::mouseReleaseEvent(e);
}
