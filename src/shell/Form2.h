#pragma once
#include "platform/Forms.h"

#include <QDialog>

class QCheckBox;

// The older twin of the start screen. Nothing shows it; finding text loads it (hidden), and at
// load it copies the style sheet choice of the settings, as its newer twin does.
class Form2 : public QDialog, public Form {
    Q_OBJECT
public:
    explicit Form2(QWidget* parent = nullptr);
    void Form_Load() override;

    QCheckBox* Check3 = nullptr;
};
