#pragma once
#include "wizards/ParameterWizard.h"

// "Java Applet": an applet tag with its parameter lines.
class JavaApplet : public ParameterWizard {
    Q_OBJECT
public:
    explicit JavaApplet(QWidget* parent = nullptr);
    ParameterText::Applet fields() const;

    QLineEdit *txtcode = nullptr, *txtcodebase = nullptr, *txtalternative = nullptr, *txtname = nullptr;

protected:
    QStringList steps() const override { return ParameterText::applet(fields()); }
};
