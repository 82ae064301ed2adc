#include "wizards/CellTableText.h"

#include "wizards/Html.h"

namespace CellTableText {

QString openingTag(const Fields& f, int cellSpacing)
{
    return QStringLiteral("<table border=1 cellspacing=") + QString::number(cellSpacing) + QStringLiteral(" bordercolor=") +
           f.txtbo + QStringLiteral(" width=") + f.txtWidth + QStringLiteral(" id=AutoNumber1 align=") + f.coAlign +
           QStringLiteral(" bgcolor=") + f.txtba + QStringLiteral(">") + Html::crlf;
}

QString grid(const Fields& f, const QList<QStringList>& rows)
{
    QString out = openingTag(f, 1);
    for (const QStringList& row : rows) {
        out += rowStart;
        for (const QString& cell : row)
            out += cellStart + cell + cellEnd;
        out += rowEnd;
    }
    return out + tableEnd;
}

}
