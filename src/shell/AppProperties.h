#pragma once
#include "platform/Forms.h"
#include "services/PropertiesFile.h"

#include <QDialog>

class QLabel;
class QProgressBar;

// \Options\Properties.dat: the folders of the open and save dialogs and the widths of the two
// side holders. The window only shows the progress of a save.
class AppProperties : public QDialog, public Form {
    Q_OBJECT
public:
    explicit AppProperties(QWidget* parent = nullptr);

    void SaveProperties();
    // Runs with every error ignored, statement by statement.
    void LoadProperties();

    QLabel* Label1 = nullptr;
    QProgressBar* Bar = nullptr;
};

QString propertiesPath();
