#include "platform/WebBrowser.h"

#include <QEventLoop>
#include <QFileInfo>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QVBoxLayout>
#include <QWebEnginePage>
#include <QWebEngineView>

WebBrowser::WebBrowser(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("WebBrowser1"));
    layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
}

QWebEngineView* WebBrowser::webView()
{
    if (view)
        return view;
    view = new QWebEngineView(this);
    view->setObjectName(QStringLiteral("WebEngineView"));
    layout->addWidget(view);
    view->setZoomFactor(zoomFactor);
    connect(view->page(), &QWebEnginePage::linkHovered, this, &WebBrowser::StatusTextChange);
    connect(view, &QWebEngineView::loadFinished, this, [this](bool) {
        Q_EMIT NavigateComplete(view->url());
        Q_EMIT StatusTextChange(QStringLiteral("Done"));
    });
    return view;
}

void WebBrowser::showEvent(QShowEvent* e)
{
    webView();
    QWidget::showEvent(e);
}

void WebBrowser::Navigate(const QString& pathOrUrl)
{
    const QUrl asUrl(pathOrUrl);
    location = (QFileInfo(pathOrUrl).isAbsolute() || asUrl.scheme().isEmpty())
                   ? QUrl::fromLocalFile(QFileInfo(pathOrUrl).absoluteFilePath())
                   : asUrl;
    webView()->load(location);
}

void WebBrowser::GoBack() { webView()->back(); }
void WebBrowser::GoForward() { webView()->forward(); }
void WebBrowser::Refresh() { webView()->reload(); }

void WebBrowser::zoomIn()
{
    zoomFactor = qMin(5.0, zoomFactor + 0.1);
    webView()->setZoomFactor(zoomFactor);
}

void WebBrowser::zoomOut()
{
    zoomFactor = qMax(0.25, zoomFactor - 0.1);
    webView()->setZoomFactor(zoomFactor);
}

void WebBrowser::PrintPreview()
{
    QPrinter printer;
    QPrintPreviewDialog preview(&printer, this);
    connect(&preview, &QPrintPreviewDialog::paintRequested, this, [this](QPrinter* p) {
        // The page prints asynchronously; the preview needs the pages before it goes on.
        QEventLoop loop;
        connect(webView(), &QWebEngineView::printFinished, &loop, &QEventLoop::quit);
        webView()->print(p);
        loop.exec();
    });
    preview.exec();
}
