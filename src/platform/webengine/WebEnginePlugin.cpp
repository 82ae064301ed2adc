// The browser engine module: Qt WebEngine behind the BrowserView interface.
#include "platform/BrowserEngine.h"

#include <QEventLoop>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QObject>
#include <QPrinter>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineView>
#include <optional>

namespace {
// What a page tells the program about a Ctrl+click, on its console with this mark before it.
const QString pickMark = QStringLiteral("velloro-source-pick:");

// Listens in every page for a click with Ctrl held and reports the element and the text under
// the pointer; the click itself then does nothing else (a link is not followed).
const char* const pickScript = R"((function () {
  document.addEventListener('click', function (e) {
    if (!e.ctrlKey || !e.target || !e.target.tagName) return;
    var el = e.target, tag = el.tagName.toLowerCase();
    var index = Array.prototype.indexOf.call(document.getElementsByTagName(tag), el);
    var text = '', offset = 0;
    var r = document.caretRangeFromPoint ? document.caretRangeFromPoint(e.clientX, e.clientY) : null;
    if (r && r.startContainer && r.startContainer.nodeType === 3) {
      text = r.startContainer.data.substring(0, 4000);
      offset = Math.min(r.startOffset, text.length);
    }
    console.log(')" "velloro-source-pick:" R"(' + JSON.stringify({tag: tag, index: index, text: text, offset: offset}));
    e.preventDefault();
    e.stopPropagation();
  }, true);
})();)";

class PreviewPage : public QWebEnginePage {
public:
    using QWebEnginePage::QWebEnginePage;
    std::function<void(const QString&, int, const QString&, int)> picked;

protected:
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString& message, int, const QString&) override
    {
        if (!message.startsWith(pickMark) || !picked)
            return;
        const QJsonObject o = QJsonDocument::fromJson(message.mid(pickMark.size()).toUtf8()).object();
        if (o.isEmpty())
            return;
        picked(o.value(QStringLiteral("tag")).toString(), o.value(QStringLiteral("index")).toInt(-1),
               o.value(QStringLiteral("text")).toString(), o.value(QStringLiteral("offset")).toInt());
    }
};

class WebEngineView : public BrowserView {
public:
    explicit WebEngineView(QWidget* parent) : view(new QWebEngineView(parent))
    {
        view->setObjectName(QStringLiteral("WebEngineView"));
        living().insert(number, this);
        auto* page = new PreviewPage(view);
        page->picked = [this](const QString& tag, int index, const QString& text, int offset) {
            if (onSourcePick)
                onSourcePick(tag, index, text, offset);
        };
        QWebEngineScript pick;
        pick.setName(QStringLiteral("velloro-source-pick"));
        pick.setSourceCode(QString::fromUtf8(pickScript));
        pick.setInjectionPoint(QWebEngineScript::DocumentReady);
        pick.setWorldId(QWebEngineScript::MainWorld);
        pick.setRunsOnSubFrames(true);
        page->scripts().insert(pick);
        view->setPage(page);
        hovered = QObject::connect(view->page(), &QWebEnginePage::linkHovered, view, [this](const QString& url) {
            if (onLinkHovered)
                onLinkHovered(url);
        });
        loaded = QObject::connect(view, &QWebEngineView::loadFinished, view, [this](bool ok) {
            // A load cut short by the next one leaves the place for that one.
            if (keepPlace && ok) {
                // The preview written again: back to where the reader was, not the top.
                const QPointF at = *keepPlace;
                keepPlace.reset();
                view->page()->runJavaScript(QStringLiteral("window.scrollTo(%1, %2)").arg(at.x()).arg(at.y()));
            }
            if (onLoadFinished)
                onLoadFinished(view->url());
        });
    }
    // The view is its parent's child and may outlive this wrapper by a little: what it says
    // after that must not reach the wrapper.
    ~WebEngineView() override
    {
        living().remove(number);
        QObject::disconnect(hovered);
        QObject::disconnect(loaded);
    }
    QWidget* widget() override { return view; }
    void load(const QUrl& url) override
    {
        if (url != view->url() || view->url().isEmpty()) {
            keepPlace.reset();
            pending.reset();
            view->load(url);
            return;
        }
        // Loading the page that is shown again is a refresh of the preview: ask the page where
        // its reader is (its own word is current; the view's is a step behind), then load and
        // go back there. Loads asked for meanwhile are one load of the latest.
        const bool asking = pending.has_value();
        pending = url;
        if (asking)
            return;
        view->page()->runJavaScript(QStringLiteral("[window.scrollX, window.scrollY]"),
                                    [number = number](const QVariant& at) {
                                        if (WebEngineView* self = living().value(number))
                                            self->reload(at);
                                    });
    }
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

    void runScript(const QString& script, std::function<void(const QVariant&)> done) override
    {
        if (done)
            view->page()->runJavaScript(script, std::move(done));
        else
            view->page()->runJavaScript(script);
    }

private:
    QWebEngineView* view;
    QMetaObject::Connection hovered, loaded;
    // Where to scroll once the page that is loading has arrived.
    std::optional<QPointF> keepPlace;
    // A refresh waiting for the page to say where its reader is.
    std::optional<QUrl> pending;
    // The wrappers alive, by number: a script's answer that arrives after its wrapper has gone
    // finds nothing. (A plain table: shared pointers made in this module and the program differ
    // in their type information.)
    static QHash<quint64, WebEngineView*>& living()
    {
        static QHash<quint64, WebEngineView*> views;
        return views;
    }
    const quint64 number = [] {
        static quint64 last = 0;
        return ++last;
    }();

    // The page said where its reader is: load the latest address asked for, to come back there.
    void reload(const QVariant& at)
    {
        if (!pending)
            return;
        const QVariantList xy = at.toList();
        if (xy.size() == 2 && (xy[0].toDouble() != 0 || xy[1].toDouble() != 0))
            keepPlace = QPointF(xy[0].toDouble(), xy[1].toDouble());
        const QUrl latest = *pending;
        pending.reset();
        view->load(latest);
    }
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
