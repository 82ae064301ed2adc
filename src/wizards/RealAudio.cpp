#include "wizards/RealAudio.h"

#include "platform/Look.h"
#include "wizards/WizardRows.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>

RealAudio::RealAudio(QWidget* parent) : ParameterWizard(QStringLiteral("Insert RealAudio"), parent)
{
    const ParameterText::Audio defaults;
    txtfile = fileField(QStringLiteral("txtfile"), QStringLiteral("File :"));
    txtname = field(QStringLiteral("txtname"), QStringLiteral("Name :"));
    coallignment = WizardRows::list(rows(), QStringLiteral("coallignment"), QStringLiteral("Allignment"),
                                    ParameterText::alignments(), defaults.coallignment);
    chkautostart = Look::named(new QCheckBox(QStringLiteral("Autostart"), this), QStringLiteral("chkautostart"));
    chksticker = Look::named(new QCheckBox(QStringLiteral("Sticker"), this), QStringLiteral("chksticker"));
    auto* boxes = new QHBoxLayout;
    boxes->addWidget(chkautostart);
    boxes->addWidget(chksticker);
    boxes->addStretch();
    rows()->addRow(QString(), boxes);
    finishRows();
}

ParameterText::Audio RealAudio::fields() const
{
    ParameterText::Audio f;
    fillCommon(f);
    f.txtfile = txtfile->text();
    f.txtname = txtname->text();
    f.coallignment = coallignment->currentText();
    f.autostart = chkautostart->isChecked();
    return f;
}

void RealAudio::failed(const RuntimeError&)
{
    // Every delivery statement failed on its own; the statements after them still run.
    afterDelivery();
    closingStep();
}
