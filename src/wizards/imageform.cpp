#include "wizards/imageform.h"

#include "documents/DocumentWindow.h"
#include "documents/Insertion.h"
#include "platform/Look.h"
#include "platform/RichTextBox.h"
#include "platform/RuntimeError.h"
#include "wizards/PictureFile.h"
#include "wizards/WizardRows.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QUrl>


namespace {
// The preview box; the picture is scaled to fit it, the natural size is what the fields take.
constexpr QSize previewBox(160, 120);
constexpr int formWidth = 460;
// A picture put into a notepad is held at most this big: a huge one is shown scaled down rather
// than decoded whole.
constexpr QSize notepadBox(2048, 2048);

QCheckBox* checkBox(QWidget* parent, const QString& name, const QString& caption)
{
    return Look::named(new QCheckBox(caption, parent), name);
}

QLineEdit* hiddenField(QWidget* parent, const QString& name)
{
    QLineEdit* edit = WizardRows::field(parent, name);
    edit->hide();
    return edit;
}
}

imageform::imageform(QWidget* parent) : WizardDialog(QStringLiteral("Load An Image ::"), Refusal::None, parent)
{
    const auto location = WizardRows::location(
        rows(), {.find = QStringLiteral("find"), .shorten = QStringLiteral("Check2")}, QStringLiteral("Location :"),
        QStringLiteral("Find"), QStringLiteral("Pictures (*.jpg *.jpeg *.bmp *.gif *.png)"),
        [this](const QString& path) { loadPicture(path); });
    Location = location.location;
    location1 = location.full;
    find = location.find;
    Check2 = location.shorten;

    // The preview, with the size fields and their two boxes beside it; the row is never lower
    // than the preview, however small the screen.
    auto* previewRow = new QWidget(this);
    previewRow->setMinimumHeight(previewBox.height());
    Picture1 = Look::named(new QLabel(previewRow), QStringLiteral("Picture1"));
    Picture1->setFixedSize(previewBox);
    Picture1->setAlignment(Qt::AlignCenter);
    Picture1->setFrameShape(QFrame::StyledPanel);
    Picture2 = Look::named(new QLabel(this), QStringLiteral("Picture2"));
    Picture2->hide();
    picwidth = WizardRows::field(previewRow, QStringLiteral("picwidth"));
    picheight = WizardRows::field(previewRow, QStringLiteral("picheight"));
    picwidth1 = hiddenField(this, QStringLiteral("picwidth1"));
    picheight1 = hiddenField(this, QStringLiteral("picheight1"));
    Check3 = checkBox(previewRow, QStringLiteral("Check3"), QStringLiteral("Maintain Aspect Ratio"));
    Check4 = checkBox(previewRow, QStringLiteral("Check4"), QStringLiteral("Size In Percent"));
    auto* size = new QFormLayout;
    size->setContentsMargins(8, 0, 0, 0);
    size->addRow(QStringLiteral("Width :"), picwidth);
    size->addRow(QStringLiteral("Height :"), picheight);
    size->addRow(Check3);
    size->addRow(Check4);
    auto* preview = new QHBoxLayout(previewRow);
    preview->setContentsMargins(0, 0, 0, 0);
    preview->addWidget(Picture1);
    preview->addLayout(size, 1);
    rows()->addRow(QStringLiteral("Preview :"), previewRow);

    align = WizardRows::alignment(rows(), QStringLiteral("align"));
    picborder = WizardRows::line(rows(), QStringLiteral("picborder"), QStringLiteral("Border :"));

    Check5 = checkBox(this, QStringLiteral("Check5"), QStringLiteral("Style Absolute Enabled"));
    rows()->addRow(QString(), Check5);
    txleft = WizardRows::field(this, QStringLiteral("txleft"));
    txtop = WizardRows::field(this, QStringLiteral("txtop"));
    WizardRows::pair(rows(), QStringLiteral("Left :"), txleft, QStringLiteral("Top :"), txtop);
    Label8 = Look::named(new QLabel(QStringLiteral("With the Style enabled, you will be able to position the picture where "
                                                   "ever you want on the web page, all you need to specify is the Left and "
                                                   "Top Values."),
                                    this),
                         QStringLiteral("Label8"));
    Label8->setWordWrap(true);
    // The form's least height must hold the wrapped note, or a small screen squeezes the rows
    // over each other.
    Label8->setMinimumHeight(Label8->heightForWidth(formWidth - 24));
    rows()->addRow(Label8);

    Check1 = checkBox(this, QStringLiteral("Check1"), QStringLiteral("Insert into  a Notepad document"));
    rows()->addRow(QString(), Check1);
    Text1 = hiddenField(this, QStringLiteral("Text1"));

    setMinimumWidth(formWidth);
    Command1 = addLoadButton(QStringLiteral("Command1"), QStringLiteral("Insert ..."));
    Command2 = addCloseButton(QStringLiteral("Command2"));

    // Errors ignored: a width or a copy that is no number leaves the height as it stands.
    connect(picwidth, &QLineEdit::textChanged, this, [this] {
        if (measuring || !Check3->isChecked())
            return;
        if (const auto height = ImageText::keptHeight(picwidth->text(), picheight1->text(), picwidth1->text()))
            picheight->setText(*height);
    });
}

void imageform::loadPicture(const QString& path)
{
    showPreview(path);
    // A file the readers do not know ends the step here, as the failed load of the picture does:
    // the sizes stand as they were.
    const auto size = PictureFile::size(path);
    if (!size)
        return;
    Picture2->resize(*size);
    measuring = true;
    picheight->setText(ImageText::naturalSize(size->height()));
    picwidth->setText(ImageText::naturalSize(size->width()));
    measuring = false;
    picheight1->setText(picheight->text());
    picwidth1->setText(picwidth->text());
}

void imageform::showPreview(const QString& path)
{
    const QImage picture = PictureFile::fitted(path, previewBox);
    if (picture.isNull())
        Picture1->clear();
    else
        Picture1->setPixmap(QPixmap::fromImage(picture));
}

ImageText::Fields imageform::fields() const
{
    ImageText::Fields f;
    f.Location = Location->text();
    f.picwidth = picwidth->text();
    f.picheight = picheight->text();
    f.percent = Check4->isChecked();
    f.align = align->currentText();
    f.picborder = picborder->text();
    f.absolute = Check5->isChecked();
    f.txleft = txleft->text();
    f.txtop = txtop->text();
    return f;
}

void imageform::beforeDelivery()
{
    if (Check5->isChecked()) {
        Text1->setText(ImageText::fragment(fields()));
    } else if (Check1->isChecked() && ActiveIsNotepad()) {
        // No text is made; the delivery that follows finds no code window in the notepad and
        // ends the command by the failure path.
        addToNotepad();
    } else {
        Text1->setText(ImageText::fragment(fields()));
    }
}

void imageform::addToNotepad()
{
    const QString path = Location->text();
    const QImage picture = PictureFile::fitted(path, notepadBox);
    if (picture.isNull())
        throw RuntimeError(481, QStringLiteral("Invalid picture"));
    ActiveDocument()->RichTextBox1()->addPicture(picture, QUrl::fromLocalFile(path).toString());
}

QString imageform::fragment() const { return Text1->text(); }

void imageform::afterDelivery()
{
    for (QLineEdit* working : {location1, Location, picheight1, picwidth1, Text1})
        working->clear();
    Picture1->clear();
}
