#pragma once
#include "pagetools/ImageMapText.h"
#include "platform/Forms.h"

#include <QColor>
#include <QDialog>
#include <QPoint>

class MapRuler;
class MapSurface;
class QAction;
class QCheckBox;
class QFrame;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QScrollArea;

// "Image Map Generator": rectangles, circles and polygons marked on a picture at its own size
// become an HTML image map, built line by line in Text2 and handed over by the clipboard.
class FormDesign : public QDialog, public Form {
    Q_OBJECT
public:
    explicit FormDesign(QWidget* parent = nullptr);

    void newMap();            // OpenFile, Command6
    void finishMap();         // Save, cmdSaveMap
    void Command5_Click();    // copy
    void Command4_Click();    // new
    void resetForm();         // picture, rulers, Text2 and the panel back to empty
    void pressed(Qt::MouseButton button, QPoint at);
    void arrowPressed(int key);
    void setKind(int kind);   // 1 circle, 2 rectangle, 3 polygon

    MapSurface* picDesign = nullptr;
    MapRuler *picTopRule = nullptr, *picLeftRule = nullptr;
    QScrollArea* pictureArea = nullptr;
    QRadioButton *optRect = nullptr, *optCircle = nullptr, *optPoly = nullptr;
    QLineEdit *txtCRD = nullptr, *txtWidth = nullptr, *txtheight = nullptr;
    QPlainTextEdit* Text2 = nullptr;
    QFrame* Frame2 = nullptr;
    QCheckBox* Check1 = nullptr;
    QPushButton *Command1 = nullptr, *Command2 = nullptr, *Command4 = nullptr, *Command5 = nullptr, *Command6 = nullptr,
                *cmdSaveMap = nullptr;
    QAction *OpenFile = nullptr, *Save = nullptr, *Exit = nullptr, *DColor = nullptr, *Rulers = nullptr,
            *Circle = nullptr, *Rectangle = nullptr, *Polygon = nullptr;

    // Text2's text with its CR LF line ends (the box itself keeps plain line breaks).
    QString html() const;
    // The coordinates of the shape in progress, as txtCRD shows them.
    QString coordinates() const { return crd; }
    int kind() const { return drawingKind; }
    QString mapName() const { return name; }
    QColor drawColour() const { return colour; }

private:
    void addAreaLine(ImageMapText::Shape shape);
    void appendText(const QString& text);
    void centreOutline(QRect& outline);
    void fitCanvas();
    // txtCRD follows the coordinates once per turn of the event loop: a long polygon's text is
    // laid out once, not at every point.
    void setCoordinates(const QString& text);

    int drawingKind = 3;
    QString name, imageTitle;
    QColor colour = Qt::red;
    QString crd;
    bool crdPending = false;
    int pointCount = 0;
    QPoint previous, first;
};
