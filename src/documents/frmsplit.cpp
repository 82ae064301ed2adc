#include "documents/frmsplit.h"

#include "platform/App.h"
#include "platform/CodeMax.h"
#include "platform/WebBrowser.h"

#include <QElapsedTimer>
#include <QFont>
#include <QLabel>
#include <QSplitter>
#include <QTimer>
#include <QVBoxLayout>

frmsplit::frmsplit(QWidget* parent) : CodeDocumentWindow(parent)
{
    setObjectName(QStringLiteral("frmsplit"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    splitter = new QSplitter(Qt::Vertical, this);
    splitter->setObjectName(QStringLiteral("splitter"));
    splitter->setChildrenCollapsible(false);
    layout->addWidget(splitter);

    CodeMax1()->setParent(splitter);
    splitter->addWidget(CodeMax1());
    auto* lower = new QWidget(splitter);
    auto* lowerLayout = new QVBoxLayout(lower);
    lowerLayout->setContentsMargins(0, 0, 0, 0);
    lowerLayout->setSpacing(0);
    Frame1 = buildPreviewBar(QStringLiteral("Frame1"), false, QStringLiteral("Check HTML Tag's"));
    lowerLayout->addWidget(Frame1);
    WebBrowser1()->setParent(lower);
    lowerLayout->addWidget(WebBrowser1(), 1);
    splitter->addWidget(lower);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({1000, 1000});
    linkpreview()->setFont(QFont(QStringLiteral("Lucida Console")));

    previewTimer = new QTimer(this);
    previewTimer->setSingleShot(true);
    previewTimer->setInterval(previewDelayMs);
    connect(previewTimer, &QTimer::timeout, this, &frmsplit::writeLivePreview);
    connect(CodeMax1(), &CodeMax::Change, this, &frmsplit::SplitChanged);
}

void frmsplit::SplitChanged()
{
    Changedvalue()->setText(QStringLiteral("Changed"));
    showTextStatus();
    if (!previewTimer->isActive())
        previewTimer->start();
}

void frmsplit::flushPreview()
{
    if (!previewTimer->isActive())
        return;
    previewTimer->stop();
    writeLivePreview();
}

void frmsplit::writeLivePreview()
{
    QElapsedTimer took;
    took.start();
    writeAndShowPreview(App::userPath() + QStringLiteral("/temp.html"));
    // A long text takes long to write and show: the next write waits a few times as long,
    // so that the keys always come first.
    previewTimer->setInterval(qMax<qint64>(previewDelayMs, 4 * took.elapsed()));
}

void frmsplit::SplitRefresh()
{
    showTextStatus();
    writeAndShowPreview(previewPath());
}
