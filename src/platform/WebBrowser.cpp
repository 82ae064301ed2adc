#include "platform/WebBrowser.h"

#include "platform/BrowserEngine.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QOpenGLContext>
#include <QPluginLoader>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QVBoxLayout>

// Exported by Qt GUI; the browser engine composes its pages in this context.
Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext* context);

namespace {
// The engine needs a context shared by all GL contexts. Qt would make it when the application
// starts, loading the GL driver at every start; it is made here instead, before the engine
// module loads, so only a session that shows a preview pays for it.
void prepareSharedContext()
{
    if (QOpenGLContext::globalShareContext())
        return;
    auto* context = new QOpenGLContext(qApp);
    context->setFormat(QSurfaceFormat::defaultFormat());
    context->create();
    qt_gl_set_global_share_context(context);
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
}

// The engine module: beside the executable, else in the build folder (tests run elsewhere).
BrowserEngine* engine(QString* error)
{
    static BrowserEngine* loaded = nullptr;
    static QString failure;
    if (loaded || !failure.isEmpty()) {
        *error = failure;
        return loaded;
    }
    const QString name = QStringLiteral("velloro_webengine.so");
    for (const QString& dir : {QCoreApplication::applicationDirPath(), QStringLiteral(VELLORO_MODULE_DIR)}) {
        const QString path = dir + QLatin1Char('/') + name;
        if (!QFileInfo::exists(path))
            continue;
        prepareSharedContext();
        QPluginLoader loader(path);
        loaded = qobject_cast<BrowserEngine*>(loader.instance());
        if (loaded)
            return loaded;
        failure = loader.errorString();
    }
    if (failure.isEmpty())
        failure = QStringLiteral("%1 was not found").arg(name);
    *error = failure;
    return nullptr;
}
}

WebBrowser::WebBrowser(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("WebBrowser1"));
    layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
}

WebBrowser::~WebBrowser() { delete view; }

BrowserView* WebBrowser::pageView()
{
    if (view || failed)
        return view;
    QString error;
    BrowserEngine* e = engine(&error);
    if (!e) {
        failed = true;
        auto* note = new QLabel(QStringLiteral("The preview is not available: ") + error, this);
        note->setObjectName(QStringLiteral("previewUnavailable"));
        note->setWordWrap(true);
        layout->addWidget(note);
        return nullptr;
    }
    view = e->createView(this);
    layout->addWidget(view->widget());
    view->setZoomFactor(zoomFactor);
    view->onLinkHovered = [this](const QString& url) { Q_EMIT StatusTextChange(url); };
    view->onSourcePick = [this](const QString& tag, int index, const QString& text, int offset) {
        Q_EMIT sourcePicked(tag, index, text, offset);
    };
    view->onLoadFinished = [this](const QUrl& url) {
        // Back and forward move the location too.
        location = url;
        Q_EMIT NavigateComplete(url);
        Q_EMIT StatusTextChange(QStringLiteral("Done"));
    };
    return view;
}

void WebBrowser::showEvent(QShowEvent* e)
{
    pageView();
    QWidget::showEvent(e);
}

void WebBrowser::Navigate(const QString& pathOrUrl)
{
    const QUrl asUrl(pathOrUrl);
    location = (QFileInfo(pathOrUrl).isAbsolute() || asUrl.scheme().isEmpty())
                   ? QUrl::fromLocalFile(QFileInfo(pathOrUrl).absoluteFilePath())
                   : asUrl;
    if (BrowserView* v = pageView())
        v->load(location);
}

void WebBrowser::GoBack()
{
    if (BrowserView* v = pageView())
        v->back();
}

void WebBrowser::GoForward()
{
    if (BrowserView* v = pageView())
        v->forward();
}

void WebBrowser::Refresh()
{
    if (BrowserView* v = pageView())
        v->reload();
}

void WebBrowser::zoomIn()
{
    zoomFactor = qMin(5.0, zoomFactor + 0.1);
    if (BrowserView* v = pageView())
        v->setZoomFactor(zoomFactor);
}

void WebBrowser::zoomOut()
{
    zoomFactor = qMax(0.25, zoomFactor - 0.1);
    if (BrowserView* v = pageView())
        v->setZoomFactor(zoomFactor);
}

void WebBrowser::PrintPreview()
{
    BrowserView* v = pageView();
    if (!v)
        return;
    QPrinter printer;
    QPrintPreviewDialog preview(&printer, this);
    connect(&preview, &QPrintPreviewDialog::paintRequested, this, [v](QPrinter* p) { v->print(p); });
    preview.exec();
}

QString linkPreviewText(const QString& statusText)
{
    return statusText == QLatin1String("Done") ? QStringLiteral("Smart Link Preview [Roll Over Links]") : statusText;
}
