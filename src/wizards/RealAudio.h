#pragma once
#include "wizards/ParameterWizard.h"

class QCheckBox;
class QComboBox;

// "Insert RealAudio": an audio embed whose parameter lines stand inside its opening tag. Its
// insert runs with errors ignored statement by statement: without a code window nothing goes
// in, yet the fields are reset all the same.
class RealAudio : public ParameterWizard {
    Q_OBJECT
public:
    explicit RealAudio(QWidget* parent = nullptr);
    ParameterText::Audio fields() const;

    QLineEdit *txtfile = nullptr, *txtname = nullptr;
    QComboBox* coallignment = nullptr;
    QCheckBox *chkautostart = nullptr, *chksticker = nullptr;  // "Autostart", "Sticker" (shown, never written)

protected:
    QStringList steps() const override { return ParameterText::realAudio(fields()); }
    void failed(const RuntimeError& error) override;
};
