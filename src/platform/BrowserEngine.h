#pragma once
#include <QtPlugin>
#include <QUrl>
#include <QVariant>
#include <functional>

class QPrinter;
class QWidget;

// The page view behind the browser control. Chromium lives in a module of its own that is
// loaded on the first preview, so a start-up that shows no preview never maps it.
class BrowserView {
public:
    virtual ~BrowserView() = default;
    virtual QWidget* widget() = 0;
    virtual void load(const QUrl& url) = 0;
    virtual void back() = 0;
    virtual void forward() = 0;
    virtual void reload() = 0;
    virtual void setZoomFactor(double factor) = 0;
    // Prints the page; returns when the printer has it.
    virtual void print(QPrinter* printer) = 0;
    // Runs a script in the page; done, if given, receives its result.
    virtual void runScript(const QString& script, std::function<void(const QVariant&)> done = {}) = 0;

    std::function<void(const QString&)> onLinkHovered;
    std::function<void(const QUrl&)> onLoadFinished;
    // A click with Ctrl held in the page: the element's tag in small letters, its place among
    // the page's elements of that tag (from 0), the text of the text node clicked (empty when
    // the click was not on text) and where in that text the click fell.
    std::function<void(const QString& tag, int index, const QString& text, int offset)> onSourcePick;
};

class BrowserEngine {
public:
    virtual ~BrowserEngine() = default;
    virtual BrowserView* createView(QWidget* parent) = 0;
};

#define VelloroBrowserEngine_iid "org.velloro.BrowserEngine/1"
Q_DECLARE_INTERFACE(BrowserEngine, VelloroBrowserEngine_iid)
