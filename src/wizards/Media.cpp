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
QPushButton* partButton(QFormLayout* rows, const QString& name)
{
    QPushButton* b = Look::faceButton(name, QStringLiteral("Insert"), rows->parentWidget());
    b->setAutoDefault(false);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(b);
    rows->addRow(row);
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
    mloop = WizardRows::line(soundRows, QStringLiteral("mloop"), QStringLiteral("Loop"), soundDefaults.mloop);
    Label12 = Look::named(new QLabel(QStringLiteral("(-1 = Infinite)"), soundFrame), QStringLiteral("Label12"));
    soundRows->addRow(QString(), Label12);
    Command1 = partButton(soundRows, QStringLiteral("Command1"));

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
    mwidth = WizardRows::line(movieRows, QStringLiteral("mwidth"), QStringLiteral("Width"), movieDefaults.mwidth);
    mheight = WizardRows::line(movieRows, QStringLiteral("mheight"), QStringLiteral("Height"), movieDefaults.mheight);
    mborder = WizardRows::line(movieRows, QStringLiteral("mborder"), QStringLiteral("Border"), movieDefaults.mborder);
    Combo1 = WizardRows::list(movieRows, QStringLiteral("Combo1"), QStringLiteral("Align"), MediaText::alignments(),
                              movieDefaults.Combo1);
    Check1 = Look::named(new QCheckBox(QStringLiteral("Loop forever"), movieFrame), QStringLiteral("Check1"));
    movieRows->addRow(QString(), Check1);
    Command2 = partButton(movieRows, QStringLiteral("Command2"));

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
