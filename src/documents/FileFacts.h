#pragma once
#include <QWidget>

class DocumentWindow;
class QLabel;

// The facts of a document's file as a column of labelled values: name, location, extension,
// size, modified, created, read only, hidden. The page options' file tab and the page
// properties window show the same panel.
class FileFacts : public QWidget {
    Q_OBJECT
public:
    explicit FileFacts(QWidget* parent = nullptr);
    // The facts of the document's file; a document without a saved file shows its caption and
    // leaves the other values as they were.
    void fill(DocumentWindow* doc);
    void clear();

    QLabel *Filenae = nullptr, *Location = nullptr, *Extension = nullptr, *Filesize = nullptr, *Modified = nullptr,
           *datecreated = nullptr, *Readonly = nullptr, *Filehidden = nullptr;
};
