#pragma once
#include <optional>
#include "platform/Forms.h"
#include "platform/TextPieces.h"

#include <QDialog>
#include <QStringList>

class QFormLayout;
class QFrame;
class QHBoxLayout;
class QPushButton;
struct RuntimeError;

// The base of every insertion wizard. It owns the layout (the banner in the heading colour, the
// rows, the button row) and the insert flow of the shared conventions:
//   refusal (a notepad is active, for wizards that refuse) -> the wizard's check of its fields ->
//   working fields -> fragment from the fields ->
//   delivery by the insertion rule -> the wizard's own after-steps -> closing step (Hide),
// all under the trap: a failure (no document, a member the window lacks) takes the failure
// path, which is the closing step unless the wizard says otherwise. A wizard supplies its
// rows, its fragment (from its builder) and, where its description has them, the variations.
class WizardDialog : public QDialog, public Form {
    Q_OBJECT
public:
    // Whether the wizard refuses a notepad before anything else.
    enum class Refusal { None, Notepad };
    // How each piece goes in: by the insertion rule (the caret behind it), or left selected.
    enum class Delivery { AtCaret, Selected };

    // The insert command ("Load"): the flow above. Connected to the wizard's load button.
    void Insert();

protected:
    WizardDialog(const QString& caption, Refusal refusal, QWidget* parent = nullptr);

    // After the refusal: a wizard that requires a field says so here and answers false, which
    // ends the command like the refusal does, the form staying on the screen.
    virtual bool checkFields() { return true; }
    // After the check, before the fragment: working fields the wizard fills from the others.
    // A failure here takes the failure path like any other.
    virtual void beforeDelivery() {}
    // The fragment of the fields as they stand; a wizard that delivers in several steps gives
    // each step, and each goes in by the insertion rule.
    virtual QString fragment() const { return {}; }
    virtual QStringList fragments() const { return {fragment()}; }
    // A fragment already in the editor's form, UTF-8 in pieces, delivered instead of
    // fragments() and handed over: a big table made that way goes in without being held twice.
    // Nothing by default.
    virtual std::optional<TextPieces> takeUtf8Pieces() { return std::nullopt; }
    virtual Delivery delivery() const { return Delivery::AtCaret; }
    // After a successful delivery, before the closing step (fields the wizard clears).
    virtual void afterDelivery() {}
    // The closing step: the form hides.
    virtual void closingStep() { hide(); }
    // The failure path; without a description of its own, the closing step, without a message.
    virtual void failed(const RuntimeError& error);

    // The rows of the form, below the banner.
    QFormLayout* rows() const { return rowLayout; }
    // A button of the bottom row; the first one added is the default (Enter).
    QPushButton* addButton(const QString& name, const QString& caption);
    // The load button: runs Insert.
    QPushButton* addLoadButton(const QString& name, const QString& caption = QStringLiteral("Load"));
    // A button that closes the form (Esc does the same).
    QPushButton* addCloseButton(const QString& name, const QString& caption = QStringLiteral("Close"));

private:
    Refusal refusal;
    QFrame* banner = nullptr;
    QFormLayout* rowLayout = nullptr;
    QHBoxLayout* buttonRow = nullptr;
};
