#pragma once
#include "wizards/ParameterText.h"
#include "wizards/WizardDialog.h"

class QLineEdit;
class QListWidget;
class QPushButton;

// What the applet, audio and object wizards share: a file chooser beside one field, the sizes,
// the parameter list built up line by line, and the insert that delivers the opening, each
// parameter line and the closing as separate steps, then resets the text fields (the sizes to
// "50"). A wizard adds its own rows, then calls finishRows().
class ParameterWizard : public WizardDialog {
    Q_OBJECT
public:
    QLineEdit *txtnamenew = nullptr, *txtvaluenew = nullptr;
    QListWidget* List1 = nullptr;
    QLineEdit *txtheight = nullptr, *txtWidth = nullptr;
    // The file chooser, "Add", "Delete", "Insert", "Exit".
    QPushButton *Command1 = nullptr, *Command2 = nullptr, *Command3 = nullptr, *Command4 = nullptr, *Command5 = nullptr;

    // The parameter lines as the list holds them.
    QStringList parameterLines() const;

protected:
    explicit ParameterWizard(const QString& caption, QWidget* parent = nullptr);

    // One of the wizard's own text fields (reset after an insert).
    QLineEdit* field(const QString& name, const QString& label);
    // The field that takes the file chosen with Command1.
    QLineEdit* fileField(const QString& name, const QString& label);
    // The sizes, the parameter rows and the buttons, below the wizard's own rows.
    void finishRows();
    // The sizes and the parameter lines, into the fields for the wizard's builder.
    void fillCommon(ParameterText::Common& f) const;

    // The steps of the delivery, from the wizard's builder.
    virtual QStringList steps() const = 0;
    QStringList fragments() const override { return steps(); }
    void afterDelivery() override;

private:
    void chooseFile();
    void addParameter();
    void deleteParameter();

    QList<QLineEdit*> textFields;  // reset after an insert
    QLineEdit* fileTarget = nullptr;
};
