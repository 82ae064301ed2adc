#pragma once
// What the wizard window tests share: the main window without a page, a wizard opened from
// its menu key, a split window, and reading a window's lists and labels.
#include "common/TestSupport.h"

#include "documents/frmsplit.h"
#include "platform/Forms.h"
#include "shell/frmMain.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLayoutItem>

class WizardFixture : public WindowTest {
protected:
    void SetUp() override { startWithoutPage(); }

    // The wizard that the menu key shows; it must be shown.
    template <class W>
    W* open(const QString& menuKey)
    {
        frmMain::instance()->MenuClick(menuKey);
        auto* w = loadedForm<W>();
        EXPECT_NE(w, nullptr) << menuKey.toStdString();
        if (w) {
            EXPECT_TRUE(w->isVisible()) << menuKey.toStdString();
        }
        return w;
    }
    static frmsplit* newSplit()
    {
        auto* split = new frmsplit;
        frmMain::instance()->addDocument(split);
        processEvents();
        return split;
    }
    static QStringList items(const QComboBox* box)
    {
        QStringList list;
        for (int i = 0; i < box->count(); ++i)
            list << box->itemText(i);
        return list;
    }
    // The label of a field: its buddy, or the label of the form row that holds it (also a row
    // the field shares with others).
    static QString labelOf(QWidget* field)
    {
        for (auto* label : field->window()->findChildren<QLabel*>())
            if (label->buddy() == field)
                return label->text();
        for (auto* layout : field->window()->findChildren<QFormLayout*>()) {
            for (int i = 0; i < layout->rowCount(); ++i) {
                QLayoutItem* item = layout->itemAt(i, QFormLayout::FieldRole);
                if (!item || (item->widget() != field && !(item->layout() && item->layout()->indexOf(field) >= 0)))
                    continue;
                QLayoutItem* label = layout->itemAt(i, QFormLayout::LabelRole);
                if (auto* l = label ? qobject_cast<QLabel*>(label->widget()) : nullptr)
                    return l->text();
            }
        }
        return {};
    }
};
