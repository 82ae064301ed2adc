#include "colour/cfinderform.h"

#include "colour/ColourFace.h"
#include "colour/ColourMixing.h"
#include "colour/ColourPictures.h"
#include "colour/ColourSwatch.h"
#include "colour/ColourText.h"
#include "colour/ScreenPixel.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "services/Workspace.h"

#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

int cfinderform::currentColour = 0;

namespace {
// The settings window, where the presets' twins live; reached by name like any window.
QWidget* settingsWindow(bool create)
{
    const QString name = QStringLiteral("Options");
    if (!create)
        return Forms::find(name);
    return Forms::hasFactory(name) ? Forms::get(name) : nullptr;
}

// The twins of preset n in the settings: "Pre-set 1" is Text2 with Shape6, and so on.
QString twinField(int n) { return QStringLiteral("Text%1").arg(n + 1); }
QString twinShape(int n) { return QStringLiteral("Shape%1").arg(7 - n); }
}

cfinderform::cfinderform(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Color Finder ::"));
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 8);

    // The header shape in the heading colour, as on every dialog.
    QLabel* heading = nullptr;
    QFrame* banner = Look::headedFrame(QStringLiteral("banner"), QStringLiteral("Color Finder ::"), this, &heading);
    banner->layout()->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(banner);

    auto* body = new QVBoxLayout;
    body->setContentsMargins(10, 4, 10, 0);
    outer->addLayout(body);

    SmartNetButton1 = Look::faceButton(QStringLiteral("SmartNetButton1"), QStringLiteral("Colour Mixer"), this);
    SmartNetButton18 = Look::faceButton(QStringLiteral("SmartNetButton18"), QStringLiteral("Named Colours"), this);
    auto* switches = new QHBoxLayout;
    switches->addWidget(SmartNetButton1);
    switches->addWidget(SmartNetButton18);
    switches->addStretch();
    body->addLayout(switches);

    // The palette and the shade bar.
    FrMixer = Look::named(new QFrame(this), QStringLiteral("FrMixer"));
    FrMixer->setFrameShape(QFrame::StyledPanel);
    ColPal = new PalettePicture(QStringLiteral("ColPal"), FrMixer);
    ColPal->setMinimumSize(280, 180);
    Piccolor = new ShadeBar(QStringLiteral("Piccolor"), FrMixer);
    Piccolor->setFixedWidth(36);
    auto* blender = new QVBoxLayout;
    blender->addWidget(new QLabel(QStringLiteral("Color Blender"), FrMixer), 0, Qt::AlignHCenter);
    blender->addWidget(Piccolor, 1, Qt::AlignHCenter);
    auto* mixer = new QHBoxLayout(FrMixer);
    mixer->addWidget(ColPal, 1);
    mixer->addLayout(blender);
    body->addWidget(FrMixer, 1);

    // The sixteen named colours.
    frWSafe = Look::named(new QFrame(this), QStringLiteral("frWSafe"));
    frWSafe->setFrameShape(QFrame::StyledPanel);
    auto* grid = new QGridLayout(frWSafe);
    for (int i = 0; i < int(ColourMixing::namedColours.size()); ++i) {
        const auto& entry = ColourMixing::namedColours[i];
        const QString text = QString::fromLatin1(entry.text);
        named[i] = Look::named(new QPushButton(text, frWSafe), QStringLiteral("SmartNetButton%1").arg(entry.button));
        named[i]->setMinimumSize(64, 40);
        named[i]->setToolTip(text);
        setColourFace(named[i], ColourText::toPlatformValue(text, 0));
        grid->addWidget(named[i], i / 4, i % 4);
        const int n = entry.button;
        connect(named[i], &QPushButton::clicked, this, Event([this, n] { namedColour_Click(n); }));
    }
    body->addWidget(frWSafe, 1);

    // The current colour and its text.
    Picture1 = new ColourSwatch(QStringLiteral("Picture1"), this);
    Picture1->setFixedSize(60, 26);
    txtcolor = Look::named(new QLineEdit(this), QStringLiteral("txtcolor"));
    Command1 = Look::faceButton(QStringLiteral("Command1"), QStringLiteral("Copy"), this);
    auto* current = new QHBoxLayout;
    current->addWidget(new QLabel(QStringLiteral("Current Selected Colour"), this));
    current->addWidget(Picture1);
    current->addWidget(txtcolor, 1);
    current->addWidget(Command1);
    body->addLayout(current);

    // The three presets.
    auto* presets = new QGridLayout;
    QLineEdit** fields[] = {&Text2, &Text3, &Text4};
    ColourSwatch** shapes[] = {&Shape1, &Shape2, &Shape3};
    QPushButton** sets[] = {&Command8, &Command9, &Command10};
    QPushButton** copies[] = {&Command11, &Command12, &Command13};
    for (int n = 1; n <= 3; ++n) {
        *fields[n - 1] = Look::named(new QLineEdit(this), QStringLiteral("Text%1").arg(n + 1));
        *shapes[n - 1] = new ColourSwatch(QStringLiteral("Shape%1").arg(n), this);
        *sets[n - 1] = Look::faceButton(QStringLiteral("Command%1").arg(7 + n), QStringLiteral("Set"), this);
        *copies[n - 1] = Look::faceButton(QStringLiteral("Command%1").arg(10 + n), QStringLiteral("Copy"), this);
        presets->addWidget(new QLabel(QStringLiteral("Set %1:").arg(n), this), n - 1, 0);
        presets->addWidget(*shapes[n - 1], n - 1, 1);
        presets->addWidget(*fields[n - 1], n - 1, 2);
        presets->addWidget(*sets[n - 1], n - 1, 3);
        presets->addWidget(*copies[n - 1], n - 1, 4);
        connect(*sets[n - 1], &QPushButton::clicked, this, Event([this, n] { setPreset(n); }));
        QLineEdit* field = *fields[n - 1];
        connect(*copies[n - 1], &QPushButton::clicked, this, Event([this, field] { copyField(field); }));
    }
    presets->setColumnStretch(2, 1);
    body->addLayout(presets);

    Label5 = Look::named(new QLabel(QStringLiteral("You can choose 3 colours which will be saved  for future use. Simply select Colour from above then click set on appropriate button \"Set\" button in box, or Simply hit th \"Copy\"."), this),
                         QStringLiteral("Label5"));
    Label5->setWordWrap(true);
    body->addWidget(Label5);

    connect(SmartNetButton1, &QPushButton::clicked, this, Event([this] { showMixer(true); }));
    connect(SmartNetButton18, &QPushButton::clicked, this, Event([this] { showMixer(false); }));
    connect(Command1, &QPushButton::clicked, this, Event([this] { copyField(txtcolor); }));
    connect(ColPal, &PalettePicture::MouseDown, this, Event([this](int) { ColPal_MouseDown(); }));
    connect(ColPal, &PalettePicture::MouseMove, this, Event([this](int c) { ColPal_MouseMove(c); }));
    connect(ColPal, &PalettePicture::MouseUp, this, Event([this](int c) { ColPal_MouseUp(c); }));
    connect(Piccolor, &ShadeBar::Click, this, Event([this](const QPoint& p) { Piccolor_Click(p); }));
    for (QPushButton* b : findChildren<QPushButton*>())
        b->setAutoDefault(false);
    const QList<QWidget*> order = {SmartNetButton1, SmartNetButton18, txtcolor, Command1, Text2, Command8, Command11,
                                   Text3, Command9, Command12, Text4, Command10, Command13};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
    showMixer(true);
    // As tall as the wrapped note needs at this width, no more: the window fits a small screen.
    constexpr int width = 520;
    resize(width, layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(width) : sizeHint().height());
}

void cfinderform::Form_Load()
{
    mouseDown = 0;
    Picture1->setBackColor(currentColour);
    // The presets as the settings hold them.
    if (QWidget* settings = settingsWindow(true)) {
        for (int n = 1; n <= 3; ++n) {
            if (auto* shape = settings->findChild<ColourSwatch*>(twinShape(n)))
                presetShape(n)->setBackColor(shape->BackColor());
            if (auto* field = settings->findChild<QLineEdit*>(twinField(n)))
                presetField(n)->setText(field->text());
        }
    }
    blendSlots = ColourMixing::loadSlots;
    drawBlender();
}

bool cfinderform::Unload()
{
    // The settings' save step, by name: the presets survive a restart.
    if (QWidget* settings = settingsWindow(false))
        QMetaObject::invokeMethod(settings, "ApplyDetails", Qt::DirectConnection);
    return Form::Unload();
}

void cfinderform::drawBlender()
{
    Piccolor->setBands(ColourMixing::blenderBands(blendSlots[0], blendSlots[1], blendSlots[2]));
    QCoreApplication::processEvents();
    Piccolor->update();
}

void cfinderform::Piccolor_Click(const QPoint& global)
{
    if (havePosition && global == lastPosition)
        return;
    havePosition = true;
    lastPosition = global;
    const std::optional<int> colour = ScreenPixel::at(global);
    if (!colour) {
        setStatusText(1, ScreenPixel::refusedText());
        return;
    }
    Picture1->setBackColor(*colour);
    txtcolor->setText(ColourText::bare(*colour));
}

void cfinderform::ColPal_MouseDown() { mouseDown = -1; }

void cfinderform::ColPal_MouseMove(int colour)
{
    if (mouseDown)
        Picture1->setBackColor(colour);
}

void cfinderform::ColPal_MouseUp(int colour)
{
    mouseDown = 0;
    currentColour = colour;
    blendSlots = ColourMixing::slotsAround(ColourMixing::valueOf(ColourMixing::split(colour)));
    drawBlender();
}

void cfinderform::namedColour_Click(int n)
{
    for (const auto& entry : ColourMixing::namedColours) {
        if (entry.button != n)
            continue;
        const QString text = QString::fromLatin1(entry.text);
        txtcolor->setText(text);
        Picture1->setBackColor(ColourText::toPlatformValue(text, 0));
    }
}

QLineEdit* cfinderform::presetField(int n) const { return n == 1 ? Text2 : n == 2 ? Text3 : Text4; }
ColourSwatch* cfinderform::presetShape(int n) const { return n == 1 ? Shape1 : n == 2 ? Shape2 : Shape3; }

void cfinderform::setPreset(int n)
{
    presetShape(n)->setBackColor(Picture1->BackColor());
    presetField(n)->setText(txtcolor->text());
    if (QWidget* settings = settingsWindow(true)) {
        if (auto* shape = settings->findChild<ColourSwatch*>(twinShape(n)))
            shape->setBackColor(Picture1->BackColor());
        if (auto* field = settings->findChild<QLineEdit*>(twinField(n)))
            field->setText(txtcolor->text());
    }
}

void cfinderform::copyField(const QLineEdit* field)
{
    const QString text = field->text();
    if (text.isEmpty()) {
        MsgBox(QStringLiteral("Theres no data in the textbox to copy!"), Style::Critical, QStringLiteral("Color Copy Lab"));
        return;
    }
    QGuiApplication::clipboard()->clear();
    QGuiApplication::clipboard()->setText(text);
}

void cfinderform::showMixer(bool mixer)
{
    FrMixer->setVisible(mixer);
    frWSafe->setVisible(!mixer);
}
