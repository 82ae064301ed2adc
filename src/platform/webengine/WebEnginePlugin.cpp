// The browser engine module: Qt WebEngine behind the BrowserView interface.
#include "platform/BrowserEngine.h"

#include <QEventLoop>
#include <QObject>
#include <QPrinter>
#include <QWebEnginePage>
#include <QWebEngineView>

namespace {
class WebEngineView : public BrowserView {
public:
    explicit WebEngineView(QWidget* parent) : view(new QWebEngineView(parent))
    {
        view->setObjectName(QStringLiteral("WebEngineView"));
        hovered = QObject::connect(view->page(), &QWebEnginePage::linkHovered, view, [this](const QString& url) {
            if (onLinkHovered)
                onLinkHovered(url);
        });
        loaded = QObject::connect(view, &QWebEngineView::loadFinished, view, [this](bool) {
            if (onLoadFinished)
                onLoadFinished(view->url());
        });
    }
    // The view is its parent's child and may outlive this wrapper by a little: what it says
    // after that must not reach the wrapper.
    ~WebEngineView() override
    {
        QObject::disconnect(hovered);
        QObject::disconnect(loaded);
    }
    QWidget* widget() override { return view; }
    void load(const QUrl& url) override { view->load(url); }
    void back() override { view->back(); }
    void forward() override { view->forward(); }
    void reload() override { view->reload(); }
    void setZoomFactor(double f) override { view->setZoomFactor(f); }
    void print(QPrinter* printer) override
    {
        QEventLoop loop;
        QObject::connect(view, &QWebEngineView::printFinished, &loop, &QEventLoop::quit);
        view->print(printer);
        loop.exec();
    }

private:
    QWebEngineView* view;
    QMetaObject::Connection hovered, loaded;
};
}

class WebEnginePlugin : public QObject, public BrowserEngine {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID VelloroBrowserEngine_iid)
    Q_INTERFACES(BrowserEngine)
public:
    BrowserView* createView(QWidget* parent) override { return new WebEngineView(parent); }
};

#include "WebEnginePlugin.moc"
