#pragma once
#include "platform/Forms.h"
#include "sites/SiteGenerator.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QStackedWidget;
class QTableWidget;

// "Site Wizard": makes a small web site in a new folder from a title, a type and a few ticks,
// then loads it as the project. Its pages are shown one at a time: the about text, the
// details, the Business or Personal pages or the Custom files, and the progress.
class SiteManagment : public QDialog, public Form {
    Q_OBJECT
public:
    explicit SiteManagment(QWidget* parent = nullptr);
    void Form_Load() override;

    // Reads a project file into the project panel and brings the panel up. Used by the wizard's
    // last step, the panel's Load button and the Add File window.
    void LoadProject(const QString& path);
    // Makes the site from the fields (the progress page is up).
    void CreateSite();
    // Shows one wizard page and hides the others.
    void showStep(QFrame* page);
    // The details page's Next: the page of the chosen site type.
    void detailsNext();
    // Adds a file of the user's choice to the Custom list.
    void SmartNetButton13_Click();
    // Resets the wizard and hides it.
    void SmartNetButton1_Click();

    QFrame *frmstep0 = nullptr, *frmstep1 = nullptr, *frmstep2B = nullptr, *frmstep2p = nullptr, *frmcustom = nullptr,
           *frmstep3 = nullptr;
    QLineEdit *sitetitle = nullptr, *siteauthor = nullptr, *sitedate = nullptr, *siteemail = nullptr, *sitelocation = nullptr;
    QComboBox* sitetype = nullptr;
    QCheckBox* BCheck[6] = {};  // BCheck1 .. BCheck6
    QCheckBox* PCheck[7] = {};  // PCheck1 .. PCheck7
    QTableWidget* Flex = nullptr;
    QProgressBar* ProgressBar1 = nullptr;
    QLabel* statusbar = nullptr;
    QListWidget* List1 = nullptr;
    QPlainTextEdit *createpage = nullptr, *createpage1 = nullptr;
    QPushButton *SmartNetButton1 = nullptr, *SmartNetButton10 = nullptr, *SmartNetButton11 = nullptr,
                *SmartNetButton12 = nullptr, *SmartNetButton13 = nullptr;
    // Buttons the wizard's pages need besides the named ones.
    QPushButton *detailsBack = nullptr, *detailsNextButton = nullptr, *browseLocation = nullptr,
                *businessBack = nullptr, *businessNext = nullptr, *personalBack = nullptr, *personalNext = nullptr,
                *progressBack = nullptr;

protected:
    void reject() override;

private:
    SiteGenerator::Request request() const;
    // A page of ticks, the ones of pages that are always made shown ticked and fixed.
    QFrame* tickPage(const QString& name, const QString& heading, const QString& prefix, const QList<const char*>& captions,
                     const QList<int>& alwaysMade, QCheckBox** boxes, QPushButton** back, QPushButton** next,
                     const QString& buttonPrefix);
    QStackedWidget* steps = nullptr;
};
