#include "wizards/Media.h"

#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "wizards/WizardRows.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {
QGroupBox* frame(QFormLayout* rows, const QString& name, const QString& title)
{
    auto* box = Look::named(new QGroupBox(title, rows->parentWidget()), name);
    auto* inner = new QFormLayout(box);
    inner->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    rows->addRow(box);
    return box;
}

// A part's own "Insert", at the right of its last row.
QPushButton* partButton(QWidget* part, const QString& name)
{
    QPushButton* b = Look::faceButton(name, QStringLiteral("Insert"), part);
    b->setAutoDefault(false);
    return b;
}

}

Media::Media(QWidget* parent) : WizardDialog(QStringLiteral("Insert Media"), Refusal::None, parent)
{
    const MediaText::Sound soundDefaults;
    const MediaText::Movie movieDefaults;

    soundFrame = frame(rows(), QStringLiteral("soundFrame"), QStringLiteral("Background Sound"));
    auto* soundRows = static_cast<QFormLayout*>(soundFrame->layout());
    const auto music = WizardRows::location(soundRows,
                                            {.location = QStringLiteral("mlocation"), .full = QStringLiteral("mlocation1"),
                                             .find = QStringLiteral("Command5"), .shorten = QStringLiteral("Check4")},
                                            QStringLiteral("Background Music"), QStringLiteral("Find"),
                                            QStringLiteral("Music (*.wav *.mp3)"));
    mlocation = music.location;
    mlocation1 = music.full;
    Command5 = music.find;
    Check4 = music.shorten;
    mloop = WizardRows::field(soundFrame, QStringLiteral("mloop"), soundDefaults.mloop);
    Label12 = Look::named(new QLabel(QStringLiteral("(-1 = Infinite)"), soundFrame), QStringLiteral("Label12"));
    Command1 = partButton(soundFrame, QStringLiteral("Command1"));
    auto* loopRow = new QHBoxLayout;
    loopRow->addWidget(mloop);
    loopRow->addWidget(Label12);
    loopRow->addStretch();
    loopRow->addWidget(Command1);
    soundRows->addRow(QStringLiteral("Loop"), loopRow);

    movieFrame = frame(rows(), QStringLiteral("movieFrame"), QStringLiteral("Movie"));
    auto* movieRows = static_cast<QFormLayout*>(movieFrame->layout());
    const auto film = WizardRows::location(movieRows,
                                           {.location = QStringLiteral("vlocation"), .full = QStringLiteral("vlocation1"),
                                            .find = QStringLiteral("Command3"), .shorten = QStringLiteral("Check5")},
                                           QStringLiteral("Movie Location"), QStringLiteral("Find"),
                                           QStringLiteral("Movies (*.mov *.avi *.mpg)"));
    vlocation = film.location;
    vlocation1 = film.full;
    Command3 = film.find;
    Check5 = film.shorten;
    mwidth = WizardRows::field(movieFrame, QStringLiteral("mwidth"), movieDefaults.mwidth);
    mheight = WizardRows::field(movieFrame, QStringLiteral("mheight"), movieDefaults.mheight);
    WizardRows::pair(movieRows, QStringLiteral("Width"), mwidth, QStringLiteral("Height"), mheight);
    mborder = WizardRows::field(movieFrame, QStringLiteral("mborder"), movieDefaults.mborder);
    Combo1 = Look::named(new QComboBox(movieFrame), QStringLiteral("Combo1"));
    Combo1->setEditable(true);
    Combo1->addItems(MediaText::alignments());
    Combo1->setCurrentText(movieDefaults.Combo1);
    WizardRows::pair(movieRows, QStringLiteral("Border"), mborder, QStringLiteral("Align"), Combo1);
    Check1 = Look::named(new QCheckBox(QStringLiteral("Loop forever"), movieFrame), QStringLiteral("Check1"));
    Command2 = partButton(movieFrame, QStringLiteral("Command2"));
    auto* lastRow = new QHBoxLayout;
    lastRow->addWidget(Check1);
    lastRow->addStretch();
    lastRow->addWidget(Command2);
    movieRows->addRow(QString(), lastRow);

    Command4 = addCloseButton(QStringLiteral("Command4"));
    Command4->setDefault(false);  // Enter inserts (see keyPressEvent), it never closes

    connect(Command1, &QPushButton::clicked, this, Event([this] { insertPart(Part::Sound); }));
    connect(Command2, &QPushButton::clicked, this, Event([this] { insertPart(Part::Movie); }));
}

MediaText::Sound Media::sound() const
{
    MediaText::Sound f;
    f.mlocation = mlocation->text();
    f.mloop = mloop->text();
    return f;
}

MediaText::Movie Media::movie() const
{
    MediaText::Movie f;
    f.vlocation = vlocation->text();
    f.mwidth = mwidth->text();
    f.mheight = mheight->text();
    f.mborder = mborder->text();
    f.Combo1 = Combo1->currentText();
    f.loop = Check1->isChecked();
    return f;
}

void Media::insertPart(Part part)
{
    if (part == Part::Sound && mlocation->text().isEmpty()) {
        MsgBox(QStringLiteral("No file selected to use as a background sound."));
        return;
    }
    if (part == Part::Movie && vlocation->text().isEmpty()) {
        MsgBox(QStringLiteral("No video selected, you need to insert a link."), Style::Critical);
        return;
    }
    current = part;
    Insert();
}

QString Media::fragment() const
{
    return current == Part::Sound ? MediaText::sound(sound()) : MediaText::movie(movie());
}

void Media::keyPressEvent(QKeyEvent* event)
{
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && event->modifiers() == Qt::NoModifier) {
        QWidget* focus = focusWidget();
        (focus && movieFrame->isAncestorOf(focus) ? Command2 : Command1)->click();
        return;
    }
    WizardDialog::keyPressEvent(event);
}
