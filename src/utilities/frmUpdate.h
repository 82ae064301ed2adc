#pragma once
#include "platform/Forms.h"

#include <QDialog>

class PageFetch;
class QLabel;
class QPushButton;

// "Check Version": compares this program's version with the one line of Update.DAT on the
// update server and, where they differ, offers the package to the desktop's browser. The
// fetch runs in the background; closing the window cancels it.
class frmUpdate : public QDialog, public Form {
    Q_OBJECT
public:
    explicit frmUpdate(QWidget* parent = nullptr);

    void Command1_Click();
    void Command2_Click();
    PageFetch* fetch() const { return Inet1; }

    QLabel *lblCversion = nullptr, *lblUName = nullptr, *lblUversion = nullptr, *lblUAuthor = nullptr,
           *lblUSize = nullptr, *lblUDate = nullptr, *lblstatus = nullptr;
    QPushButton *Command1 = nullptr, *Command2 = nullptr, *Command3 = nullptr;

protected:
    void hideEvent(QHideEvent* e) override;

private:
    void fetched(const QByteArray& body, const QByteArray& contentType);
    void ended(const QString& statusLine);

    PageFetch* Inet1 = nullptr;
    bool waiting = false;
};
