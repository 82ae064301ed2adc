#include "platform/Look.h"

#include "platform/CodeMax.h"
#include "platform/PlatformColour.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace Look {

void editorColours(CodeMax* editor)
{
    const int blue = PlatformColour::fromQColor(heading);
    editor->setColour(CodeMax::LineNumberBackColour, blue);
    editor->setColour(CodeMax::LeftMarginColour, blue);
    editor->setColour(CodeMax::LineNumberColour, PlatformColour::fromQColor(Qt::white));
}

QPushButton* faceButton(const QString& name, const QString& caption, QWidget* parent)
{
    auto* b = named(new QPushButton(caption, parent), name);
    b->setStyleSheet(QStringLiteral("background-color: %1;").arg(face.name()));
    if (caption == QLatin1String("...."))
        b->setMaximumWidth(36);
    return b;
}

QFrame* banner(const QString& name, const QString& caption, QWidget* parent)
{
    auto* shape = named(new QFrame(parent), name);
    shape->setAutoFillBackground(true);
    QPalette p = shape->palette();
    p.setColor(QPalette::Window, Look::heading);
    p.setColor(QPalette::WindowText, Qt::white);
    shape->setPalette(p);
    auto* row = new QHBoxLayout(shape);
    auto* title = new QLabel(caption, shape);
    QFont f = title->font();
    f.setBold(true);
    f.setPointSizeF(f.pointSizeF() * 1.2);
    title->setFont(f);
    row->addWidget(title);
    return shape;
}

QFrame* headedFrame(const QString& name, const QString& heading, QWidget* parent, QLabel** headingLabel)
{
    auto* f = named(new QFrame(parent), name);
    auto* v = new QVBoxLayout(f);
    auto* h = new QLabel(heading, f);
    h->setStyleSheet(QStringLiteral("font-weight: bold; color: white; background-color: %1; padding: 5px;").arg(Look::heading.name()));
    v->addWidget(h);
    if (headingLabel)
        *headingLabel = h;
    return f;
}

}

#include "platform/App.h"

#include <QFileInfo>

namespace Look {
QIcon menuIcon(const QString& name)
{
    const QString path = App::path() + QStringLiteral("/Options/Images/") + name + QStringLiteral(".ico");
    return QFileInfo::exists(path) ? QIcon(path) : QIcon();
}
}
