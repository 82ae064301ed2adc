#include "shell/Form2.h"

#include "platform/CheckValue.h"
#include "platform/Look.h"
#include "services/Settings.h"

#include <QCheckBox>
#include <QVBoxLayout>

Form2::Form2(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("New Form Properties ::"));
    auto* layout = new QVBoxLayout(this);
    Check3 = Look::named(new QCheckBox(QStringLiteral("Set Style sheet?"), this), QStringLiteral("Check3"));
    layout->addWidget(Check3);
}

void Form2::Form_Load() { setCheckValue(Check3, Settings::details().CSS); }
