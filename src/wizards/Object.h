#pragma once
#include "wizards/ParameterWizard.h"

class QComboBox;

// "Object": an object tag with its parameter lines.
class Object : public ParameterWizard {
    Q_OBJECT
public:
    explicit Object(QWidget* parent = nullptr);
    ParameterText::Object fields() const;

    QLineEdit *txtcodebase = nullptr, *txtname = nullptr, *txtclass = nullptr;
    QComboBox* coallignment = nullptr;

protected:
    QStringList steps() const override { return ParameterText::object(fields()); }
};
