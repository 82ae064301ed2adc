#include "wizards/JavaApplet.h"

#include <QLineEdit>

JavaApplet::JavaApplet(QWidget* parent) : ParameterWizard(QStringLiteral("Java Applet"), parent)
{
    txtcode = fileField(QStringLiteral("txtcode"), QStringLiteral("Code :"));
    txtcodebase = field(QStringLiteral("txtcodebase"), QStringLiteral("Code Base :"));
    txtalternative = field(QStringLiteral("txtalternative"), QStringLiteral("Alternative :"));
    txtname = field(QStringLiteral("txtname"), QStringLiteral("Name :"));
    finishRows();
}

ParameterText::Applet JavaApplet::fields() const
{
    ParameterText::Applet f;
    fillCommon(f);
    f.txtcode = txtcode->text();
    f.txtcodebase = txtcodebase->text();
    f.txtalternative = txtalternative->text();
    f.txtname = txtname->text();
    return f;
}
