#pragma once
#include <QUrl>
#include <QWidget>

class BrowserView;
class QVBoxLayout;

// The browser control. The engine behind it is loaded and its view created on first use (a
// navigation or the first time the control is shown), so start-up does not pay for it.
class WebBrowser : public QWidget {
    Q_OBJECT
public:
    explicit WebBrowser(QWidget* parent = nullptr);
    ~WebBrowser() override;

    void Navigate(const QString& pathOrUrl);
    void GoBack();
    void GoForward();
    void Refresh();
    void zoomIn();
    void zoomOut();
    double zoom() const { return zoomFactor; }
    void PrintPreview();
    QUrl LocationURL() const { return location; }

    bool isCreated() const { return view != nullptr; }
    // The page view, created when needed; null when the engine cannot be loaded (the control
    // then says so in its own area).
    BrowserView* pageView();

Q_SIGNALS:
    // The hovered link's address, "" when the pointer leaves it, and "Done" after each load.
    void StatusTextChange(const QString& text);
    void NavigateComplete(const QUrl& url);
    // A click with Ctrl held in the page (see BrowserView::onSourcePick).
    void sourcePicked(const QString& tag, int index, const QString& text, int offset);

protected:
    void showEvent(QShowEvent* e) override;

private:
    BrowserView* view = nullptr;
    bool failed = false;
    QVBoxLayout* layout = nullptr;
    QUrl location;
    double zoomFactor = 1.0;
};

// What a link preview label shows for the browser's status text: after a load, the hint to roll
// over links; otherwise the text itself (the hovered link's address).
QString linkPreviewText(const QString& statusText);
