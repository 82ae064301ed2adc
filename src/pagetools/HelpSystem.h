#pragma once
#include "platform/Forms.h"

#include <QDialog>

class IndexPanel;
class QPushButton;
class WebBrowser;

// "Velloro 2002 Help System": the help folder's pages as a searchable list beside a browser view
// that starts on the index page.
class HelpSystem : public QDialog, public Form {
    Q_OBJECT
public:
    explicit HelpSystem(QWidget* parent = nullptr);
    void Form_Load() override;

    // The help folder of the application folder.
    static QString folder();
    // Shows a help page by its name (the file name without ".htm").
    void showPage(const QString& name);
    void fillLists();
    void List2_DblClick();
    void SmartNetButton3_Click();  // the help box

    // The pages' index: List1, List2, File1, Text1, Option1, Option2, Bar and the search
    // button SmartNetButton2.
    IndexPanel* index = nullptr;
    WebBrowser* Web1 = nullptr;
    // Home, the help box, forward, back, "Refresh Help List".
    QPushButton *SmartNetButton1 = nullptr, *SmartNetButton3 = nullptr, *SmartNetButton4 = nullptr,
                *SmartNetButton5 = nullptr, *SmartNetButton6 = nullptr;
};
