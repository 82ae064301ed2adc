#pragma once
#include <QGroupBox>
#include <functional>

class FileListBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QVBoxLayout;

// A folder's files as a searchable index, as the quick notes and the help show it: the complete
// list (`List1`, never shown), the list the user sees (`List2`), the search box (`Text1`) with
// its two kinds of match (`Option1` "Partial word", `Option2` "Exact Word"), the search button
// (`SmartNetButton2`) and the search's progress (`Bar`).
class IndexPanel : public QGroupBox {
    Q_OBJECT
public:
    // `row` makes a file name into a row of the lists.
    IndexPanel(const QString& title, std::function<QString(const QString&)> row, QWidget* parent);

    // Both lists anew from the folder's files; a missing folder leaves them empty.
    void fill(const QString& folder);
    // The rows of List1 that match the search text go to List2.
    void search();
    // The row chosen in List2, "" when none is.
    QString chosenRow() const;
    // Rows below the index's own controls (a note, buttons of the window).
    QVBoxLayout* column() const { return layout; }

    FileListBox* File1 = nullptr;
    QListWidget *List1 = nullptr, *List2 = nullptr;
    QLineEdit* Text1 = nullptr;
    QRadioButton *Option1 = nullptr, *Option2 = nullptr;
    QPushButton* SmartNetButton2 = nullptr;
    QProgressBar* Bar = nullptr;

Q_SIGNALS:
    // A double click on a row of List2 (also an empty one: the window decides).
    void rowActivated();

private:
    std::function<QString(const QString&)> rowOf;
    QVBoxLayout* layout = nullptr;
};
