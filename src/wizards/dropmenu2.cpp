#include "wizards/dropmenu2.h"

#include <QComboBox>
#include <QLineEdit>

dropmenu2::dropmenu2(QWidget* parent)
    : DropMenuForm(QStringLiteral("Drop Down Menu ::"), QStringLiteral("Click Here"), DropMenuText::Form::firstOption, parent)
{
    addSelectRows();
    addButtons();
}

DropMenuText::Form::Fields dropmenu2::fields() const
{
    DropMenuText::Form::Fields f;
    f.Text3 = Text3->text();
    f.Combo2 = Combo2->currentText();
    f.Text5 = Text5->text();
    f.List1 = texts();
    f.List2 = links();
    return f;
}

void dropmenu2::beforeDelivery() { Text4->setText(DropMenuText::Form::fragment(fields())); }

QString dropmenu2::fragment() const { return DropMenuText::Form::fragment(fields()); }
