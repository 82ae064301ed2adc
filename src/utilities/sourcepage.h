#pragma once
#include "platform/Forms.h"

#include <QDialog>

class PageFetch;
class QLabel;
class QLineEdit;
class QPushButton;

// "Velloro 2002 Source Grabber": pulls the source of a web address into a new, unsaved web page
// window. The fetch runs in the background; closing the window cancels it.
class sourcepage : public QDialog, public Form {
    Q_OBJECT
public:
    explicit sourcepage(QWidget* parent = nullptr);

    void Command1_Click();
    void Command2_Click();
    // The running fetch, for tests that shorten its patience.
    PageFetch* fetch() const { return Inet1; }

    QLineEdit* Text1 = nullptr;
    QLabel* Label3 = nullptr;
    QPushButton *Command1 = nullptr, *Command2 = nullptr;

protected:
    void hideEvent(QHideEvent* e) override;

private:
    void fetched(const QByteArray& body, const QByteArray& contentType);
    void fetchFailed(const QString& reason);

    PageFetch* Inet1 = nullptr;
    QString address;
};
