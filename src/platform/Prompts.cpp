#include "platform/Prompts.h"

#include "platform/App.h"
#include "platform/EventProcedure.h"
#include "platform/RuntimeError.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>

namespace {
PromptHandler* installed = nullptr;

QWidget* dialogParent() { return QApplication::activeWindow(); }
}

PromptHandler& prompts()
{
    static QtPrompts real;
    return installed ? *installed : real;
}

void setPromptHandler(PromptHandler* handler) { installed = handler; }

void ReportRunTimeError(const RuntimeError& e)
{
    MsgBox(runtimeErrorText(e), Style::Critical, App::title());
}

int MsgBox(const QString& text, int style, const QString& title)
{
    return prompts().msgBox(text, style, title.isEmpty() ? App::title() : title);
}

QString InputBox(const QString& prompt, const QString& title, const QString& deflt)
{
    return prompts().inputBox(prompt, title.isEmpty() ? App::title() : title, deflt);
}

int QtPrompts::msgBox(const QString& text, int style, const QString& title)
{
    QMessageBox box(dialogParent());
    box.setWindowTitle(title);
    box.setText(text);
    switch (style & 0x70) {
    case 16: box.setIcon(QMessageBox::Critical); break;
    case 32: box.setIcon(QMessageBox::Question); break;
    case 48: box.setIcon(QMessageBox::Warning); break;
    case 64: box.setIcon(QMessageBox::Information); break;
    default: box.setIcon(QMessageBox::NoIcon); break;
    }
    struct Button { QMessageBox::StandardButton button; int answer; };
    QList<Button> buttons;
    switch (style & 7) {
    case 1: buttons = {{QMessageBox::Ok, Answer::OK}, {QMessageBox::Cancel, Answer::Cancel}}; break;
    case 2: buttons = {{QMessageBox::Abort, Answer::Abort}, {QMessageBox::Retry, Answer::Retry}, {QMessageBox::Ignore, Answer::Ignore}}; break;
    case 3: buttons = {{QMessageBox::Yes, Answer::Yes}, {QMessageBox::No, Answer::No}, {QMessageBox::Cancel, Answer::Cancel}}; break;
    case 4: buttons = {{QMessageBox::Yes, Answer::Yes}, {QMessageBox::No, Answer::No}}; break;
    case 5: buttons = {{QMessageBox::Retry, Answer::Retry}, {QMessageBox::Cancel, Answer::Cancel}}; break;
    default: buttons = {{QMessageBox::Ok, Answer::OK}}; break;
    }
    QMessageBox::StandardButtons set;
    for (const auto& b : buttons)
        set |= b.button;
    box.setStandardButtons(set);
    // The default button is the first, as on the platform (style bits 256/512 pick another).
    const int defaultIndex = qBound(0, (style >> 8) & 3, static_cast<int>(buttons.size()) - 1);
    box.setDefaultButton(buttons[defaultIndex].button);
    const auto clicked = static_cast<QMessageBox::StandardButton>(box.exec());
    for (const auto& b : buttons)
        if (b.button == clicked)
            return b.answer;
    // Closed with Escape or the window's close box: Cancel where there is one, else the only button.
    for (const auto& b : buttons)
        if (b.answer == Answer::Cancel)
            return Answer::Cancel;
    return buttons.size() == 1 ? buttons.first().answer : Answer::Cancel;
}

QString QtPrompts::inputBox(const QString& prompt, const QString& title, const QString& deflt)
{
    bool ok = false;
    const QString s = QInputDialog::getText(dialogParent(), title, prompt, QLineEdit::Normal, deflt, &ok);
    return ok ? s : QString();
}

QString QtPrompts::openFile(const QString& title, const QString& filter, const QString& folder)
{
    return QFileDialog::getOpenFileName(dialogParent(), title, folder, filter);
}

QString QtPrompts::saveFile(const QString& title, const QString& filter, const QString& folder)
{
    return QFileDialog::getSaveFileName(dialogParent(), title, folder, filter);
}

QString QtPrompts::folder(const QString& title, const QString& start)
{
    return QFileDialog::getExistingDirectory(dialogParent(), title, start);
}

std::optional<int> QtPrompts::colour(int initial)
{
    const QColor start(initial & 0xFF, (initial >> 8) & 0xFF, (initial >> 16) & 0xFF);
    const QColor c = QColorDialog::getColor(start, dialogParent());
    if (!c.isValid())
        return std::nullopt;
    return c.red() | (c.green() << 8) | (c.blue() << 16);
}

bool QtPrompts::print(QPrinter& printer, bool offerSelection)
{
    QPrintDialog dialog(&printer, dialogParent());
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, offerSelection);
    return dialog.exec() == QDialog::Accepted;
}

bool QtPrompts::pageSetup(QPrinter& printer, const QString& title)
{
    QPageSetupDialog dialog(&printer, dialogParent());
    dialog.setWindowTitle(title);
    return dialog.exec() == QDialog::Accepted;
}

std::optional<QFont> QtPrompts::font(const QFont& initial)
{
    bool ok = false;
    const QFont f = QFontDialog::getFont(&ok, initial, dialogParent());
    if (!ok)
        return std::nullopt;
    return f;
}

bool OnErrorExit(const std::function<void()>& body, const QString& message, int style,
                 const QString& title)
{
    if (OnErrorExit(body))
        return true;
    MsgBox(message, style, title);
    return false;
}

