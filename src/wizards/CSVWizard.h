#pragma once
#include "wizards/WizardDialog.h"
#include "wizards/CsvTableText.h"
#include "wizards/WizardRows.h"

#include <memory>
#include <optional>
#include <utility>

class QLabel;
class QLineEdit;
class QPushButton;
class QThread;
struct RuntimeError;

// "Table Wizard": a table from a comma-separated or tab-delimited text file. The menu entry
// that opens it hands over the chosen file in the property "sourceFile"; its format decides
// which of the two buttons is active.
class CSVWizard : public WizardDialog {
    Q_OBJECT
public:
    explicit CSVWizard(QWidget* parent = nullptr);
    ~CSVWizard() override;

    // A file of at least this many bytes is made a table on a worker thread: the program stays
    // responsive, the status line shows how far the build has come, and closing the window
    // stops it. Smaller files take no noticeable time and go in at once.
    static inline qint64 backgroundFrom = 4 * 1024 * 1024;
    bool building() const { return worker != nullptr; }

    QLineEdit *txtlocation = nullptr, *txtWidth = nullptr, *txtbo = nullptr, *txtba = nullptr;
    QComboBox* coAlign = nullptr;
    QLabel* Label1 = nullptr;
    // "Find"; the comma and the tab button; the two "Choose".
    QPushButton *Command1 = nullptr, *Command2 = nullptr, *Command3 = nullptr, *Command4 = nullptr, *Command6 = nullptr;

protected:
    std::optional<TextPieces> takeUtf8Pieces() override;
    bool event(QEvent* e) override;
    void showEvent(QShowEvent* e) override;
    void hideEvent(QHideEvent* e) override;

private:
    // The file the menu handed over, taken once: into txtlocation, and its button made the
    // active one. False when there was none.
    bool takeSourceFile();
    void setActive(bool comma, bool tab);
    void insertWith(char separator);
    void buildInBackground(const QString& path);
    void buildFinished();
    void stopBuild();
    struct Build;
    std::shared_ptr<Build> job;
    QThread* worker = nullptr;
    std::pair<bool, bool> activeBefore;  // the comma and the tab button
    // The table a finished background build made (or the failure it met), for the insert flow.
    std::optional<TextPieces> prepared;
    std::shared_ptr<RuntimeError> preparedFailure;
    WizardRows::TableStyle style;
    char separator = CsvTableText::comma;
};
