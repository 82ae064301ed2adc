#pragma once
#include "platform/Forms.h"

#include <QDialog>

class QLabel;

// The about box. Its versionname label is the head of the main window's caption.
class AboutFORM : public QDialog, public Form {
    Q_OBJECT
public:
    explicit AboutFORM(QWidget* parent = nullptr);
    QLabel* versionname = nullptr;
};

// "Velloro 2002 : Version " and the version number: the head of the main caption.
QString versionCaption();
