#pragma once
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QWidget>

// Calls changed whenever the value of a text box, check box or list below root changes, by
// the user or by code: how a window that holds settings publishes them as values.
template <class F>
void onAnyControlChange(QWidget* root, F changed)
{
    for (auto* edit : root->findChildren<QLineEdit*>())
        QObject::connect(edit, &QLineEdit::textChanged, root, changed);
    for (auto* box : root->findChildren<QCheckBox*>())
        QObject::connect(box, &QCheckBox::stateChanged, root, changed);
    for (auto* list : root->findChildren<QComboBox*>())
        QObject::connect(list, &QComboBox::currentTextChanged, root, changed);
}
