#include "stylesheets/frmCSSCreate.h"

#include "colour/ColourText.h"
#include "platform/App.h"
#include "platform/CodeMax.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "platform/Twips.h"
#include "platform/WebBrowser.h"
#include "services/Commands.h"
#include "stylesheets/DesignerText.h"

#include <QCheckBox>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QScrollBar>
#include <QSplitter>
#include <QTableWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

using Look::named;

namespace {
const QString top = QStringLiteral("top");

QPushButton* button(QWidget* parent, const QString& name, const QString& caption, const QString& tip = {})
{
    QPushButton* b = Look::faceButton(name, caption, parent);
    b->setAutoDefault(false);
    if (!tip.isEmpty())
        b->setToolTip(tip);
    return b;
}

// A label that names its field, so that the field's label can be found from the field.
QLabel* labelFor(QWidget* field, const QString& text, QWidget* parent)
{
    auto* l = new QLabel(text, parent);
    l->setBuddy(field);
    return l;
}

// Restores the editor's selection and view after a step that rewrites the whole text.
struct KeepSelection {
    explicit KeepSelection(CodeMax* e)
        : editor(e), anchor(e->SendScintilla(QsciScintilla::SCI_GETANCHOR)),
          caret(e->SendScintilla(QsciScintilla::SCI_GETCURRENTPOS)),
          firstLine(e->SendScintilla(QsciScintilla::SCI_GETFIRSTVISIBLELINE))
    {
    }
    ~KeepSelection()
    {
        const long length = editor->SendScintilla(QsciScintilla::SCI_GETLENGTH);
        editor->SendScintilla(QsciScintilla::SCI_SETSEL, qMin(anchor, length), qMin(caret, length));
        editor->SendScintilla(QsciScintilla::SCI_SETFIRSTVISIBLELINE, firstLine);
    }
    CodeMax* editor;
    long anchor, caret, firstLine;
};
}

// --- the up-down arrows ------------------------------------------------------------------------

UpDown::UpDown(const QString& name, QWidget* parent) : QWidget(parent)
{
    setObjectName(name);
    setFocusPolicy(Qt::NoFocus);
    setFixedWidth(16);
}

void UpDown::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRect r = rect().adjusted(0, 0, -1, -1);
    const int middle = r.center().y();
    p.fillRect(r, Look::face);
    p.setPen(Look::heading);
    p.drawRect(r);
    p.drawLine(r.left(), middle, r.right(), middle);
    // A small triangle in each half, pointing its way.
    const qreal cx = r.center().x() + 0.5, w = 4, h = 3;
    p.setPen(Qt::NoPen);
    p.setBrush(palette().color(QPalette::ButtonText));
    const qreal upY = (r.top() + middle) / 2.0, downY = (middle + r.bottom()) / 2.0 + 1;
    p.drawPolygon(QPolygonF{{cx - w, upY + h / 2}, {cx + w, upY + h / 2}, {cx, upY - h / 2}});
    p.drawPolygon(QPolygonF{{cx - w, downY - h / 2}, {cx + w, downY - h / 2}, {cx, downY + h / 2}});
}

void UpDown::mousePressEvent(QMouseEvent* e)
{
    if (e->button() != Qt::LeftButton)
        return;
    step(e->position().y() < height() / 2.0 ? 1 : -1);
    Q_EMIT stepped();
}

void UpDown::step(int by)
{
    if (!buddy)
        return;
    // A number with a fraction keeps it; no number counts from 0.
    const QString now = DesignerText::leadingNumber(buddy->text());
    const double value = now.toDouble() + by;
    buddy->setText(QString::number(value, 'g', 12));
}

// --- the designer ------------------------------------------------------------------------------

frmCSSCreate::frmCSSCreate(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Velloro 2002 CSS Creator + Editor"));
    auto* outer = new QVBoxLayout(this);

    // The open file and the file buttons.
    txtfile = named(new QLineEdit(this), QStringLiteral("txtfile"));
    Command4 = button(this, QStringLiteral("Command4"), QStringLiteral("Open"), QStringLiteral("Open a .css document"));
    Command5 = button(this, QStringLiteral("Command5"), QStringLiteral("New"), QStringLiteral("Create a new .css document"));
    Command6 = button(this, QStringLiteral("Command6"), QStringLiteral("Save"), QStringLiteral("Save current .css document"));
    SmartNetButton1 = button(this, QStringLiteral("SmartNetButton1"), QStringLiteral("Help"));
    SmartNetButton1->setToolTip(QStringLiteral("How to write a style sheet"));
    auto* fileRow = new QHBoxLayout;
    fileRow->addWidget(labelFor(txtfile, QStringLiteral("Open File :"), this));
    fileRow->addWidget(txtfile, 1);
    for (QPushButton* b : {Command4, Command5, Command6, SmartNetButton1})
        fileRow->addWidget(b);
    outer->addLayout(fileRow);

    // The sheet above its preview page, beside the property list and the declaration.
    auto* split = new QSplitter(Qt::Horizontal, this);
    auto* sheetSide = new QSplitter(Qt::Vertical, split);
    CodeMax1 = named(new CodeMax(sheetSide), QStringLiteral("CodeMax1"));
    CodeMax1->setText(DesignerText::newSheet());
    CodeMax1->setMinimumSize(360, 200);
    WebBrowser1 = named(new WebBrowser(sheetSide), QStringLiteral("WebBrowser1"));
    WebBrowser1->setMinimumHeight(140);
    sheetSide->setStretchFactor(0, 3);
    sheetSide->setStretchFactor(1, 2);

    auto* listSide = new QWidget(split);
    auto* list = new QVBoxLayout(listSide);
    list->setContentsMargins(0, 0, 0, 0);
    Flex = named(new QTableWidget(0, 4, listSide), QStringLiteral("Flex"));
    Flex->horizontalHeader()->hide();
    Flex->verticalHeader()->hide();
    Flex->setEditTriggers(QAbstractItemView::NoEditTriggers);
    Flex->setSelectionMode(QAbstractItemView::SingleSelection);
    Flex->setWordWrap(false);
    const int widths[4] = {1800, 1800, 600, 600};
    for (int c = 0; c < 4; ++c)
        Flex->setColumnWidth(c, twipsToPixels(widths[c]));
    // The choices' column takes what room is left, so more of the choices show.
    Flex->horizontalHeader()->setMinimumSectionSize(twipsToPixels(widths[3]));
    Flex->horizontalHeader()->setStretchLastSection(true);
    list->addWidget(Flex, 1);

    // The value editors live over the grid's cells.
    Combo1 = named(new QComboBox(Flex->viewport()), QStringLiteral("Combo1"));
    txtinput = named(new QLineEdit(Flex->viewport()), QStringLiteral("txtinput"));
    txtnum = named(new QLineEdit(Flex->viewport()), QStringLiteral("txtnum"));
    UpDown1 = new UpDown(QStringLiteral("UpDown1"), Flex->viewport());
    UpDown1->setBuddy(txtnum);
    // A row is as high as the tallest editor that covers it.
    Flex->verticalHeader()->setMinimumSectionSize(1);
    Flex->verticalHeader()->setDefaultSectionSize(qMax(Combo1->sizeHint().height(), txtinput->sizeHint().height()));
    hideEditors();

    lblResult = named(new QLineEdit(listSide), QStringLiteral("lblResult"));
    Command2 = button(listSide, QStringLiteral("Command2"), QStringLiteral("Insert"), QStringLiteral("Insert Tag into main css editor"));
    Command1 = button(listSide, QStringLiteral("Command1"), QStringLiteral("Reset"), QStringLiteral("Reset single tag property selected"));
    list->addWidget(labelFor(lblResult, QStringLiteral("Selected Property List Item :"), listSide));
    auto* resultRow = new QHBoxLayout;
    resultRow->addWidget(lblResult, 1);
    resultRow->addWidget(Command2);
    resultRow->addWidget(Command1);
    list->addLayout(resultRow);
    Webb = named(new WebBrowser(listSide), QStringLiteral("Webb"));
    Webb->setFixedHeight(110);
    list->addWidget(labelFor(Webb, QStringLiteral("Selected Property List Item Preview :"), listSide));
    list->addWidget(Webb);
    ChkUpdate = named(new QCheckBox(QStringLiteral("Update Main Automatically"), listSide), QStringLiteral("ChkUpdate"));
    Check1 = named(new QCheckBox(QStringLiteral("Web Preview on Text Box change ?"), listSide), QStringLiteral("Check1"));
    Command3 = button(listSide, QStringLiteral("Command3"), QStringLiteral("Preview"), QStringLiteral("Update Preview screen manualy"));
    auto* checks = new QGridLayout;
    checks->addWidget(ChkUpdate, 0, 0);
    checks->addWidget(Check1, 1, 0);
    checks->addWidget(Command3, 0, 1, 2, 1, Qt::AlignRight | Qt::AlignVCenter);
    list->addLayout(checks);
    listSide->setMinimumWidth(Flex->horizontalHeader()->length() + Flex->verticalScrollBar()->sizeHint().width() +
                              2 * Flex->frameWidth());
    split->setStretchFactor(0, 3);
    split->setStretchFactor(1, 2);
    outer->addWidget(split, 1);

    Label4 = named(new QLabel(QStringLiteral(
        "ABOUT: You can edit or create a new .css document from here, to edit a file, click the \"Open\" then click "
        "between the {} in the document and select items from the right hand list. When saving a new file, enter a "
        "location and name plus .css and click \"Save\" and the file will be generated."), this), QStringLiteral("Label4"));
    Label4->setWordWrap(true);
    outer->addWidget(Label4);

    setTabOrder(txtfile, Command4);
    setTabOrder(Command4, Command5);
    setTabOrder(Command5, Command6);
    setTabOrder(Command6, SmartNetButton1);
    setTabOrder(SmartNetButton1, CodeMax1);
    setTabOrder(CodeMax1, Flex);
    setTabOrder(Flex, lblResult);
    setTabOrder(lblResult, Command2);
    setTabOrder(Command2, Command1);
    setTabOrder(Command1, ChkUpdate);
    setTabOrder(ChkUpdate, Check1);
    setTabOrder(Check1, Command3);
    resize(1000, 680);

    txtinput->installEventFilter(this);
    txtnum->installEventFilter(this);
    connect(Flex, &QTableWidget::cellClicked, this, Event([this](int row, int) { Flex_Click(row); }));
    connect(Flex->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { hideEditors(); });
    connect(Combo1, &QComboBox::activated, this, Event([this](int) { Combo1_Click(); }));
    connect(txtinput, &QLineEdit::textEdited, this, Event([this] { txtinput_Change(); }));
    connect(txtnum, &QLineEdit::textEdited, this, Event([this] { txtnum_Change(); }));
    connect(UpDown1, &UpDown::stepped, this, Event([this] { txtnum_Change(); }));
    connect(lblResult, &QLineEdit::textChanged, this, Event([this] { lblResult_Change(); }));
    connect(Command1, &QPushButton::clicked, this, Event([this] { Command1_Click(); }));
    connect(Command2, &QPushButton::clicked, this, Event([this] { Command2_Click(); }));
    connect(Command3, &QPushButton::clicked, this, Event([this] { Command3_Click(); }));
    connect(Command4, &QPushButton::clicked, this, Event([this] { Command4_Click(); }));
    connect(Command5, &QPushButton::clicked, this, Event([this] { Command5_Click(); }));
    connect(Command6, &QPushButton::clicked, this, Event([this] { Command6_Click(); }));
    connect(Check1, &QCheckBox::clicked, this, Event([this] { Check1_Click(); }));
    connect(SmartNetButton1, &QPushButton::clicked, this, Event([this] { SmartNetButton1_Click(); }));
    connect(CodeMax1, &CodeMax::Change, this, Event([this] {
        changedFlag = true;
        if (Check1->isChecked())
            sheetPreview();
    }));
}

void frmCSSCreate::Form_Load()
{
    setAutoFillBackground(true);
    QPalette pal = palette();
    pal.setColor(QPalette::Window, Look::heading);
    pal.setColor(QPalette::WindowText, Qt::white);
    setPalette(pal);
    // The fields keep the ordinary colours; only the form's own face is the heading blue.
    for (QWidget* w : {static_cast<QWidget*>(txtfile), static_cast<QWidget*>(lblResult), static_cast<QWidget*>(Flex),
                       static_cast<QWidget*>(Combo1), static_cast<QWidget*>(txtinput), static_cast<QWidget*>(txtnum)})
        w->setPalette(QApplication::palette(w));
    for (QCheckBox* c : {ChkUpdate, Check1})
        c->setStyleSheet(QStringLiteral("color: white;"));
    Look::editorColours(CodeMax1);
    minus = Look::menuIcon(QStringLiteral("minus"));
    plus = Look::menuIcon(QStringLiteral("plus"));

    try {
        fillFlex();
    } catch (const RuntimeError& e) {
        // The list is a required part of the program: without it the window does not open.
        ReportRunTimeError(e);
        Unload();
        return;
    }
    CodeMax1->setEditorFont(QFont(QStringLiteral("Courier New"), 10));
    declarationPreview();
    sheetPreview();
    CodeMax1->setCursorPosition(0, DesignerText::newSheetCaretColumn);
    changedFlag = false;
}

void frmCSSCreate::fillFlex()
{
    const QString path = DesignerText::propertyListPath(App::path());
    bool ok = false;
    const QByteArray bytes = TextFiles::readBytes(path, &ok);
    if (!ok)
        throw RuntimeError(53, QStringLiteral("File not found: ") + QDir::toNativeSeparators(path));
    const DesignerText::PropertyList list = DesignerText::readPropertyList(bytes);
    if (!list.fault.isEmpty())
        MsgBox(QStringLiteral("The style property list ") + QDir::toNativeSeparators(path) +
                   QStringLiteral(" cannot be read: ") + list.fault + QStringLiteral(". The list stays empty."),
               Style::Exclamation);

    Flex->setUpdatesEnabled(false);
    Flex->clearContents();
    Flex->setRowCount(int(list.rows.size()));
    QFont bold = Flex->font();
    bold.setBold(true);
    for (int r = 0; r < list.rows.size(); ++r) {
        const DesignerText::PropertyRow& p = list.rows[r];
        const QString texts[4] = {DesignerText::cellName(p.name), p.value, p.type, p.extra};
        for (int c = 0; c < 4; ++c) {
            auto* item = new QTableWidgetItem(texts[c]);
            // A long name or value is cut at the column's edge; its tip shows it whole.
            if (c <= ValueColumn)
                item->setToolTip(texts[c].trimmed());
            if (p.isGroup() && c <= ValueColumn) {
                item->setBackground(Look::face);
                item->setFont(bold);
            }
            Flex->setItem(r, c, item);
        }
        if (p.isGroup())
            Flex->item(r, NameColumn)->setIcon(minus);
    }
    Flex->setUpdatesEnabled(true);
}

QString frmCSSCreate::cell(int row, int column) const
{
    const QTableWidgetItem* item = Flex->item(row, column);
    return item ? item->text() : QString();
}

void frmCSSCreate::hideEditors()
{
    for (QWidget* w : {static_cast<QWidget*>(UpDown1), static_cast<QWidget*>(txtnum),
                       static_cast<QWidget*>(txtinput), static_cast<QWidget*>(Combo1)})
        w->hide();
}

void frmCSSCreate::placeOverCell(QWidget* editor, int row, int width, QWidget* beside)
{
    const QRect r = Flex->visualRect(Flex->model()->index(row, ValueColumn));
    editor->setGeometry(r.x(), r.y(), width, r.height());
    editor->show();
    editor->raise();
    if (beside) {
        beside->setGeometry(r.x() + width, r.y(), beside->width(), r.height());
        beside->show();
        beside->raise();
    }
}

void frmCSSCreate::Flex_Click(int row)
{
    if (row < 0 || row >= Flex->rowCount())
        return;
    const QString type = cell(row, TypeColumn);
    // One value editor at a time: the one of the row clicked last.
    hideEditors();
    if (type == top) {
        toggleGroup(row);
        return;
    }
    edited = row;
    const QString value = cell(row, ValueColumn);
    if (type == QLatin1String("text")) {
        txtinput->setText(value);
        placeOverCell(txtinput, row, twipsToPixels(1850));
        txtinput->setFocus();
        refreshDeclaration();
    } else if (type == QLatin1String("drop")) {
        Combo1->clear();
        Combo1->addItems(DesignerText::choices(cell(row, ExtraColumn)));
        Combo1->setCurrentIndex(Combo1->findText(value));
        placeOverCell(Combo1, row, twipsToPixels(1780));
        refreshDeclaration();
    } else if (type == QLatin1String("color")) {
        const std::optional<int> chosen = prompts().colour(ColourText::toPlatformValue(value, 0));
        if (chosen)
            setValue(ColourText::bare(*chosen));
    } else if (type == QLatin1String("num")) {
        txtnum->setText(DesignerText::leadingNumber(value));
        placeOverCell(txtnum, row, Flex->columnWidth(ValueColumn) - UpDown1->width(), UpDown1);
        txtnum->setFocus();
        refreshDeclaration();
    }
}

void frmCSSCreate::toggleGroup(int row)
{
    bool isNumber = false;
    const int count = cell(row, ExtraColumn).trimmed().toInt(&isNumber);
    if (!isNumber)
        throw RuntimeError::typeMismatch(QStringLiteral("Flex"));
    const bool collapsed = row + 1 < Flex->rowCount() && Flex->isRowHidden(row + 1);
    {
        // Without updates the row header does not work out where each row stands on the screen,
        // which it would do for every row again: a long group took seconds.
        Flex->verticalHeader()->setUpdatesEnabled(false);
        const auto updates = qScopeGuard([this] { Flex->verticalHeader()->setUpdatesEnabled(true); });
        for (int r = row + 1; r <= row + count; ++r) {
            // A count beyond the last row is the grid's own error, after the rows that are there.
            if (r >= Flex->rowCount())
                throw RuntimeError(30009, QStringLiteral("Invalid Row value"), QStringLiteral("Flex"));
            Flex->setRowHidden(r, !collapsed);
        }
    }
    Flex->item(row, NameColumn)->setIcon(collapsed ? minus : plus);
    Flex->setCurrentCell(row, NameColumn);
}

void frmCSSCreate::setValue(const QString& value)
{
    if (edited < 0 || edited >= Flex->rowCount())
        return;
    Flex->item(edited, ValueColumn)->setText(value);
    Flex->item(edited, ValueColumn)->setToolTip(value);
    refreshDeclaration();
}

void frmCSSCreate::refreshDeclaration()
{
    lblResult->setText(DesignerText::declaration(cell(edited, NameColumn), cell(edited, ValueColumn)));
}

void frmCSSCreate::Combo1_Click() { setValue(Combo1->currentText()); }
void frmCSSCreate::txtinput_Change() { setValue(txtinput->text()); }
void frmCSSCreate::txtnum_Change() { setValue(DesignerText::numberValue(txtnum->text())); }

void frmCSSCreate::lblResult_Change()
{
    declarationPreview();
    if (ChkUpdate->isChecked()) {
        CodeMax1->setSelText(TextFiles::crlf + lblResult->text());
        CodeMax1->ExecuteCmd(CodeMax::CollapseRight);
        sheetPreview();
    }
}

void frmCSSCreate::Command1_Click() { lblResult->clear(); }

void frmCSSCreate::Command2_Click()
{
    CodeMax1->setSelText(lblResult->text());
    CodeMax1->ExecuteCmd(CodeMax::CollapseRight);
}

void frmCSSCreate::Command3_Click() { sheetPreview(); }

void frmCSSCreate::Check1_Click()
{
    if (Check1->isChecked())
        MsgBox(QStringLiteral("Dont have this ticked when selecting from the Property List unless you have a fast PC!"),
               Style::Critical);
}

void frmCSSCreate::declarationPreview()
{
    const QString path = DesignerText::declarationPagePath(App::userPath());
    QDir().mkpath(QFileInfo(path).absolutePath());
    if (!TextFiles::writeScratch(path, TextFiles::encode(DesignerText::declarationPage(lblResult->text()))))
        throw RuntimeError::pathFileAccess(QStringLiteral("Sample.htm"));
    Webb->Navigate(path);
}

void frmCSSCreate::sheetPreview()
{
    // The small letters below change the text, which with Check1 ticked asks for this again.
    if (previewing)
        return;
    previewing = true;
    const QString path = DesignerText::sheetPagePath(App::userPath());
    ResumeNext next;
    {
        // The user's caret stays where it was, so an insertion after a preview goes there too.
        KeepSelection keep(CodeMax1);
        next([this] { CodeMax1->ExecuteCmd(CodeMax::SelectAll); });
        next([this] { CodeMax1->ExecuteCmd(CodeMax::LowerCase); });
    }
    const QString page = DesignerText::sheetPage(CodeMax1->text(), DesignerText::homePage());
    next([&] {
        if (!TextFiles::writeScratch(path, TextFiles::encode(page)))
            throw RuntimeError::pathFileAccess(QStringLiteral("CSSPreview.htm"));
    });
    next([&] { WebBrowser1->Navigate(path); });
    previewing = false;
}

void frmCSSCreate::Command4_Click()
{
    const QString path = prompts().openFile(QStringLiteral("Open"), QStringLiteral("CSS File (*.css *.CSS)"), {});
    if (path.isEmpty())
        return;
    txtfile->setText(path);
    CodeMax1->OpenFile(path);
    sheetPreview();
}

void frmCSSCreate::Command5_Click()
{
    CodeMax1->setText(DesignerText::newSheet());
    CodeMax1->setCursorPosition(0, DesignerText::newSheetCaretColumn);
}

void frmCSSCreate::Command6_Click()
{
    if (!changedFlag) {
        MsgBox(QStringLiteral("The file currently open hasnt changed."), Style::Information);
        return;
    }
    const QString path = txtfile->text();
    if (path.isEmpty()) {
        MsgBox(QStringLiteral("No location to save file to."), Style::Critical);
        return;
    }
    // Written whole through a temporary file, so a failed save leaves the old file as it was.
    CodeMax1->SaveFile(path, true);
    changedFlag = false;
    MsgBox(QStringLiteral("File ") + path + QStringLiteral(" has been saved."), Style::Information);
}

void frmCSSCreate::SmartNetButton1_Click()
{
    // The style sheet guide, in the program's help browser.
    const QString help = QStringLiteral("HelpSystem");
    if (!Forms::hasFactory(help))
        return;
    showForm(help);
    if (auto* browser = Forms::get(help)->findChild<WebBrowser*>(QStringLiteral("Web1")))
        browser->Navigate(App::path() + QStringLiteral("/Documents/Help/CSS Documents.htm"));
}

bool frmCSSCreate::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut) {
        if (watched == txtinput)
            txtinput->hide();
        else if (watched == txtnum) {
            txtnum->hide();
            UpDown1->hide();
        }
    }
    return QDialog::eventFilter(watched, event);
}
