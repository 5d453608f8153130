#include "ui/controls/swatchgrid/CopiedCells.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QStringList>

#include <memory>

namespace dyeworks {

namespace {

// What is handed to the clipboard may outlive this library, so it is always a copy of its own.
QString formatName() {
    return QString::fromLatin1("application/x-dyeworks-cells");
}

/// Says of a row of cells that it is a run. Beside the cells, so that a program that knows no runs reads them
/// as a row.
QString runFormatName() {
    return QString::fromLatin1("application/x-dyeworks-cell-run");
}

/// One line per row, hexadecimal values between blanks.
QByteArray encoded(const CopiedCells& cells) {
    QByteArray lines;
    int column = 0;
    for (const std::uint32_t value : cells.values) {
        lines += QByteArray::number(value, 16);
        column = (column + 1) % cells.columns;
        lines += column == 0 ? '\n' : ' ';
    }
    return lines;
}

std::optional<CopiedCells> decoded(const QByteArray& lines) {
    CopiedCells cells;
    for (const QByteArray& line : lines.split('\n')) {
        if (line.isEmpty())
            continue;
        const QList<QByteArray> row = line.split(' ');
        if (cells.columns == 0)
            cells.columns = static_cast<int>(row.size());
        if (row.size() != cells.columns)
            return std::nullopt;
        for (const QByteArray& number : row) {
            bool valid = false;
            cells.values.push_back(number.toUInt(&valid, 16));
            if (!valid)
                return std::nullopt;
        }
    }
    return cells.values.empty() ? std::nullopt : std::optional(std::move(cells));
}

/// "#RRGGBB", rows by lines and columns by tabulators, as tables take it.
QString readable(const CopiedCells& cells) {
    QString text;
    int column = 0;
    for (const std::uint32_t value : cells.values) {
        const std::uint32_t colour = (value & 0xffU) << 16U | (value & 0xff00U) | (value >> 16U & 0xffU);
        text += QString::fromLatin1("#%1").arg(colour, 6, 16, QLatin1Char('0')).toUpper();
        column = (column + 1) % cells.columns;
        text += QLatin1Char(column == 0 ? '\n' : '\t');
    }
    return text;
}

} // namespace

void CopiedCells::putOnClipboard() const {
    auto data = std::make_unique<QMimeData>();
    data->setData(formatName(), encoded(*this));
    if (isRun)
        data->setData(runFormatName(), QByteArray("1"));
    data->setText(readable(*this));
    QGuiApplication::clipboard()->setMimeData(data.release());
}

std::optional<CopiedCells> CopiedCells::fromClipboard() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    if (data == nullptr)
        return std::nullopt;
    std::optional<CopiedCells> cells = decoded(data->data(formatName()));
    if (cells)
        cells->isRun = data->hasFormat(runFormatName());
    return cells;
}

bool CopiedCells::areOnClipboard() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data != nullptr && data->hasFormat(formatName());
}

} // namespace dyeworks
