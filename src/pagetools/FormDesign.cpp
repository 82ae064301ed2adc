#include "pagetools/FormDesign.h"

#include "pagetools/MapSurface.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/PlatformColour.h"
#include "platform/Prompts.h"
#include "platform/RuntimeError.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <limits>

namespace {
// The picture types the platform's picture loader reads, for the file dialog.
QString pictureFilter()
{
    QStringList patterns;
    for (const QByteArray& format : QImageReader::supportedImageFormats())
        patterns << QStringLiteral("*.") + QString::fromLatin1(format);
    return QStringLiteral("Pictures (") + patterns.join(QLatin1Char(' ')) + QStringLiteral(")");
}

QLineEdit* shownValue(const QString& name, QWidget* parent)
{
    auto* edit = Look::named(new QLineEdit(parent), name);
    edit->setReadOnly(true);
    return edit;
}
}

FormDesign::FormDesign(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("FormDesign"));
    setWindowTitle(QStringLiteral("Image Map Generator"));
    resize(900, 640);

    // The picture with its rulers, scrolling together when the picture is larger than the window.
    picDesign = new MapSurface(this);
    picTopRule = new MapRuler(Qt::Horizontal, this);
    picLeftRule = new MapRuler(Qt::Vertical, this);
    auto* canvas = new QWidget(this);
    auto* canvasGrid = new QGridLayout(canvas);
    canvasGrid->setSpacing(0);
    canvasGrid->setContentsMargins(0, 0, 0, 0);
    canvasGrid->addWidget(picTopRule, 0, 1, Qt::AlignLeft);
    canvasGrid->addWidget(picLeftRule, 1, 0, Qt::AlignTop);
    canvasGrid->addWidget(picDesign, 1, 1, Qt::AlignLeft | Qt::AlignTop);
    canvasGrid->setRowStretch(2, 1);
    canvasGrid->setColumnStretch(2, 1);
    pictureArea = Look::named(new QScrollArea(this), QStringLiteral("pictureArea"));
    pictureArea->setWidget(canvas);

    // The side: the drawing kind, the shape in progress, the picture's size, the actions.
    auto* kinds = new QGroupBox(QStringLiteral("Select ..."), this);
    optRect = Look::named(new QRadioButton(QStringLiteral("Rectangle"), this), QStringLiteral("optRect"));
    optCircle = Look::named(new QRadioButton(QStringLiteral("Circle"), this), QStringLiteral("optCircle"));
    optPoly = Look::named(new QRadioButton(QStringLiteral("Polygon"), this), QStringLiteral("optPoly"));
    optPoly->setChecked(true);
    auto* kindColumn = new QVBoxLayout(kinds);
    for (QRadioButton* b : {optRect, optCircle, optPoly})
        kindColumn->addWidget(b);
    txtCRD = shownValue(QStringLiteral("txtCRD"), this);
    txtCRD->setMaxLength(std::numeric_limits<int>::max());
    txtWidth = shownValue(QStringLiteral("txtWidth"), this);
    txtheight = shownValue(QStringLiteral("txtheight"), this);
    auto* facts = new QGridLayout;
    facts->addWidget(new QLabel(QStringLiteral("Coordinates :"), this), 0, 0);
    facts->addWidget(txtCRD, 0, 1);
    facts->addWidget(new QLabel(QStringLiteral("Width :"), this), 1, 0);
    facts->addWidget(txtWidth, 1, 1);
    facts->addWidget(new QLabel(QStringLiteral("Height :"), this), 2, 0);
    facts->addWidget(txtheight, 2, 1);
    Command6 = Look::faceButton(QStringLiteral("Command6"), QStringLiteral("Action ..."), this);
    cmdSaveMap = Look::faceButton(QStringLiteral("cmdSaveMap"), QStringLiteral("&Generate HTML"), this);
    cmdSaveMap->hide();
    Command1 = Look::faceButton(QStringLiteral("Command1"), QStringLiteral("Close"), this);
    auto* hint = new QLabel(QStringLiteral("Left button: place a point or move the outline (arrow keys size it). "
                                           "Right button: finish the shape."),
                            this);
    hint->setWordWrap(true);
    auto* side = new QVBoxLayout;
    side->addWidget(kinds);
    side->addLayout(facts);
    side->addWidget(hint);
    side->addStretch();
    side->addWidget(Command6);
    side->addWidget(cmdSaveMap);
    side->addWidget(Command1);

    // The panel with the HTML, shown when the map is finished.
    Frame2 = Look::named(new QFrame(this), QStringLiteral("Frame2"));
    Frame2->setFrameShape(QFrame::StyledPanel);
    Text2 = Look::named(new QPlainTextEdit(Frame2), QStringLiteral("Text2"));
    Text2->setLineWrapMode(QPlainTextEdit::NoWrap);
    Command5 = Look::faceButton(QStringLiteral("Command5"), QStringLiteral("Copy Data"), Frame2);
    Command4 = Look::faceButton(QStringLiteral("Command4"), QStringLiteral("New"), Frame2);
    Command2 = Look::faceButton(QStringLiteral("Command2"), QStringLiteral("Close"), Frame2);
    Check1 = Look::named(new QCheckBox(QStringLiteral("Exit on copy"), Frame2), QStringLiteral("Check1"));
    auto* frameColumn = new QVBoxLayout(Frame2);
    frameColumn->addWidget(Text2, 1);
    auto* frameButtons = new QHBoxLayout;
    frameButtons->addWidget(Check1);
    frameButtons->addStretch();
    frameButtons->addWidget(Command5);
    frameButtons->addWidget(Command4);
    frameButtons->addWidget(Command2);
    frameColumn->addLayout(frameButtons);
    Frame2->hide();

    // The menus.
    auto* bar = new QMenuBar(this);
    QMenu* file = bar->addMenu(QStringLiteral("&File"));
    file->setObjectName(QStringLiteral("mFileCtrl"));
    QMenu* tools = bar->addMenu(QStringLiteral("&Tools"));
    tools->setObjectName(QStringLiteral("Tools"));
    const auto item = [this](QMenu* menu, const char* key, const char* caption) {
        QAction* a = menu->addAction(QString::fromUtf8(caption));
        a->setObjectName(QString::fromLatin1(key));
        return a;
    };
    OpenFile = item(file, "OpenFile", "&Create New Image Map");
    Save = item(file, "Save", "Create HTML Code");
    Exit = item(file, "Exit", "&Close");
    DColor = item(tools, "DColor", "Draw &Color");
    Rulers = item(tools, "Rulers", "&Show/Hide Rulers");
    Circle = item(tools, "Circle", "&Circle");
    Rectangle = item(tools, "Rectangle", "&Rectangle");
    Polygon = item(tools, "Polygon", "&Polygon");

    auto* work = new QHBoxLayout;
    work->addWidget(pictureArea, 1);
    work->addLayout(side);
    auto* outer = new QVBoxLayout(this);
    outer->setMenuBar(bar);
    outer->addLayout(work, 3);
    outer->addWidget(Frame2, 2);

    for (QPushButton* b : {Command1, Command2, Command4, Command5, Command6, cmdSaveMap})
        b->setAutoDefault(false);
    connect(picDesign, &MapSurface::pressed, this, Event([this](Qt::MouseButton b, QPoint at) { pressed(b, at); }));
    // Dragging with the left button moves an outline along: a rubber band that follows the pointer.
    connect(picDesign, &MapSurface::moved, this, Event([this](QPoint at, Qt::MouseButtons buttons) {
                if ((buttons & Qt::LeftButton) && drawingKind != 3)
                    pressed(Qt::LeftButton, at);
            }));
    connect(picDesign, &MapSurface::arrowPressed, this, Event([this](int key) { arrowPressed(key); }));
    connect(optCircle, &QRadioButton::toggled, this, [this](bool on) { if (on) setKind(1); });
    connect(optRect, &QRadioButton::toggled, this, [this](bool on) { if (on) setKind(2); });
    connect(optPoly, &QRadioButton::toggled, this, [this](bool on) { if (on) setKind(3); });
    connect(Circle, &QAction::triggered, optCircle, [this] { optCircle->setChecked(true); });
    connect(Rectangle, &QAction::triggered, optRect, [this] { optRect->setChecked(true); });
    connect(Polygon, &QAction::triggered, optPoly, [this] { optPoly->setChecked(true); });
    connect(OpenFile, &QAction::triggered, Command6, &QPushButton::click);
    connect(Command6, &QPushButton::clicked, this, Event([this] { newMap(); }));
    connect(Save, &QAction::triggered, this, Event([this] { finishMap(); }));
    connect(cmdSaveMap, &QPushButton::clicked, this, Event([this] { finishMap(); }));
    connect(Command5, &QPushButton::clicked, this, Event([this] { Command5_Click(); }));
    connect(Command4, &QPushButton::clicked, this, Event([this] { Command4_Click(); }));
    connect(Command2, &QPushButton::clicked, Frame2, &QFrame::hide);
    const auto close = Event([this] {
        resetForm();
        hide();
    });
    connect(Command1, &QPushButton::clicked, this, close);
    connect(Exit, &QAction::triggered, this, close);
    connect(Rulers, &QAction::triggered, this, [this] {
        const bool shown = !picTopRule->isVisible();
        picTopRule->setVisible(shown);
        picLeftRule->setVisible(shown);
    });
    connect(DColor, &QAction::triggered, this, Event([this] {
                if (const auto chosen = prompts().colour(PlatformColour::fromQColor(colour)))
                    colour = PlatformColour::toQColor(*chosen);
            }));
}

void FormDesign::newMap()
{
    const QString path = prompts().openFile(QString(), pictureFilter(), QString());
    if (path.isEmpty()) {
        MsgBox(QStringLiteral("Nof file selected for feature!"), Style::Critical);
        return;
    }
    QImageReader reader(path);
    // No size limit of the toolkit's own: the picture is shown whole, at its own size.
    reader.setAllocationLimit(0);
    const QImage picture = reader.read();
    if (picture.isNull())
        throw RuntimeError::invalidPicture(QStringLiteral("FormDesign"));
    picDesign->setPicture(picture);
    imageTitle = QFileInfo(path).fileName();
    picTopRule->setLength(picture.width());
    picLeftRule->setLength(picture.height());
    fitCanvas();
    txtWidth->setText(QString::number(picture.width()));
    txtheight->setText(QString::number(picture.height()));

    name = InputBox(QStringLiteral("Enter a Name for this Image Map. I.E. map1"), QStringLiteral("Start New Image Map"),
                    QStringLiteral("map1"));
    if (name.isEmpty())
        MsgBox(QStringLiteral("You must enter a name for the Image Map."), Style::Exclamation,
               QStringLiteral("See Help topic MAP TITLE"));
    imageTitle = QFileInfo(path).fileName();
    optPoly->setChecked(true);
    setKind(3);
    Text2->setPlainText(ImageMapText::head(name));
}

void FormDesign::setKind(int kind)
{
    drawingKind = kind;
    if (kind == 1) {
        centreOutline(picDesign->crcl);
        picDesign->showOutline(MapSurface::Outline::Circle);
    } else if (kind == 2) {
        centreOutline(picDesign->rect);
        picDesign->showOutline(MapSurface::Outline::Box);
    } else {
        picDesign->showOutline(MapSurface::Outline::None);
    }
}

void FormDesign::centreOutline(QRect& outline)
{
    if (outline.isEmpty())
        outline.setSize(QSize(60, 60));
    outline.moveCenter(QRect(QPoint(0, 0), picDesign->size()).center());
    picDesign->update();
}

void FormDesign::pressed(Qt::MouseButton button, QPoint at)
{
    if (button != Qt::LeftButton && button != Qt::RightButton)
        return;
    const bool left = button == Qt::LeftButton;
    if (drawingKind == 3) {
        if (pointCount < 1) {
            pointCount = 1;
            previous = first = at;
        }
        if (left) {
            picDesign->drawLine(at, previous, colour);
            previous = at;
            pointCount = qMin(pointCount + 1, 3);
            setCoordinates(crd + QStringLiteral("%1,%2,").arg(at.x()).arg(at.y()));
            picDesign->drawSquare(at, colour);
            picDesign->setPendingPoint(at);
        } else {
            cmdSaveMap->show();
            picDesign->drawLine(first, previous, colour);
            picDesign->setPendingPoint(std::nullopt);
            pointCount = 0;
            addAreaLine(ImageMapText::Shape::Poly);
        }
        return;
    }
    QRect& outline = drawingKind == 1 ? picDesign->crcl : picDesign->rect;
    if (left) {
        if (drawingKind == 1)
            outline.moveTo(at.x() - outline.width() / 2, at.y());
        else
            outline.moveTo(at);
        picDesign->update();
        return;
    }
    cmdSaveMap->show();
    if (drawingKind == 1) {
        setCoordinates(crd + ImageMapText::circleCoords(outline));
        const ImageMapText::CircleArea c = ImageMapText::circleIn(outline);
        const int r = int(qMax<long long>(0, c.radius));
        picDesign->drawEllipse(QRect(int(c.x) - r, int(c.y) - r, 2 * r, 2 * r), colour);
        addAreaLine(ImageMapText::Shape::Circle);
    } else {
        setCoordinates(crd + ImageMapText::rectCoords(outline));
        picDesign->drawBox(outline, colour);
        addAreaLine(ImageMapText::Shape::Rect);
    }
}

void FormDesign::arrowPressed(int key)
{
    if (drawingKind == 1) {
        // Both sides at once: the circle stays round.
        const int step = key == 39 || key == 40 ? 1 : -1;
        picDesign->crcl.setSize(picDesign->crcl.size() + QSize(step, step));
    } else if (drawingKind == 2) {
        QRect& r = picDesign->rect;
        if (key == 37)
            r.setWidth(r.width() - 1);
        else if (key == 39)
            r.setWidth(r.width() + 1);
        else if (key == 38)
            r.setHeight(r.height() - 1);
        else if (key == 40)
            r.setHeight(r.height() + 1);
    }
    picDesign->update();
}

void FormDesign::addAreaLine(ImageMapText::Shape shape)
{
    const QString address = InputBox(QStringLiteral("Enter a Web Address URL for this shape. Press Enter to accept default."),
                                     QStringLiteral("URL Link Address"), QStringLiteral("new_page.htm"));
    const QString coords = shape == ImageMapText::Shape::Poly ? ImageMapText::polygonCoords(crd) : crd;
    appendText(ImageMapText::areaLine(shape, coords, address));
    setCoordinates(QString());
}

QString FormDesign::html() const { return Text2->toPlainText().replace(QLatin1Char('\n'), QStringLiteral("\r\n")); }

void FormDesign::appendText(const QString& text)
{
    // The text so far plus the piece, exactly: appendPlainText would start a new paragraph.
    Text2->setPlainText(html() + text);
}

void FormDesign::setCoordinates(const QString& text)
{
    crd = text;
    if (crdPending)
        return;
    crdPending = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            crdPending = false;
            txtCRD->setText(crd);
        },
        Qt::QueuedConnection);
}

void FormDesign::finishMap()
{
    picDesign->setPicture(QImage());
    fitCanvas();
    Frame2->show();
    appendText(ImageMapText::tail(imageTitle, name, txtWidth->text(), txtheight->text()));
}

void FormDesign::Command5_Click()
{
    QClipboard* clipboard = QApplication::clipboard();
    clipboard->clear();
    clipboard->setText(html());
    if (Check1->isChecked())
        resetForm();
    else
        MsgBox(QStringLiteral("Data copied to the clipboard."), Style::Information);
}

void FormDesign::Command4_Click()
{
    resetForm();
    newMap();
}

void FormDesign::resetForm()
{
    Frame2->hide();
    picTopRule->setLength(0);
    picLeftRule->setLength(0);
    picDesign->setPicture(QImage());
    fitCanvas();
    Text2->clear();
}

void FormDesign::fitCanvas()
{
    // The picture and rulers at their own size; the scroll bars show what the window cannot.
    pictureArea->widget()->adjustSize();
}
