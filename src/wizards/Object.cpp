#include "wizards/Object.h"

#include "wizards/WizardRows.h"

#include <QComboBox>
#include <QLineEdit>

Object::Object(QWidget* parent) : ParameterWizard(QStringLiteral("Object"), parent)
{
    const ParameterText::Object defaults;
    txtcodebase = fileField(QStringLiteral("txtcodebase"), QStringLiteral("Code Base :"));
    txtname = field(QStringLiteral("txtname"), QStringLiteral("Name :"));
    txtclass = field(QStringLiteral("txtclass"), QStringLiteral("Class ID"));
    coallignment = WizardRows::list(rows(), QStringLiteral("coallignment"), QStringLiteral("Allignment"),
                                    ParameterText::alignments(), defaults.coallignment);
    finishRows();
}

ParameterText::Object Object::fields() const
{
    ParameterText::Object f;
    fillCommon(f);
    f.txtcodebase = txtcodebase->text();
    f.txtname = txtname->text();
    f.txtclass = txtclass->text();
    f.coallignment = coallignment->currentText();
    return f;
}
