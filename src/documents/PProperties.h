#pragma once
#include "platform/Forms.h"

#include <QDialog>

class FileFacts;
class QPushButton;

// "Page Properties": the facts of the active document's file, to read only.
class PProperties : public QDialog, public Form {
    Q_OBJECT
public:
    explicit PProperties(QWidget* parent = nullptr);
    // The facts of the active document, read anew each time the window shows.
    void refresh();

    FileFacts* facts = nullptr;
    QPushButton* Command1 = nullptr;  // Close

protected:
    void showEvent(QShowEvent* e) override;
};
