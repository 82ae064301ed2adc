#pragma once
#include "wizards/DropMenuForm.h"
#include "wizards/DropMenuText.h"

// "Drop Down Menu ::": a menu of entries with submit and reset buttons, for a form.
class dropmenu2 : public DropMenuForm {
    Q_OBJECT
public:
    explicit dropmenu2(QWidget* parent = nullptr);
    DropMenuText::Form::Fields fields() const;

protected:
    // The working field holds the menu as it goes in.
    void beforeDelivery() override;
    QString fragment() const override;
};
