#pragma once
#include "platform/Forms.h"
#include "shell/PropertiesFile.h"

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

    // The open and save dialogs' folders, lines 1 to 6. The open and save windows take them
    // from here when they load and give them back when they change.
    PropertiesRecord folders;

    QLabel* Label1 = nullptr;
    QProgressBar* Bar = nullptr;
};

QString propertiesPath();
