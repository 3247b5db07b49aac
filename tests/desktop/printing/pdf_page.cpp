#include "tests/desktop/printing/pdf_page.h"

#include <QFile>
#include <QRegularExpression>
#include <QTransform>

#include <vector>

namespace {

QByteArray inflated(const QByteArray & bytes)
{
    QByteArray packed("\0\0\1\0", 4);  // the toolkit wants a guess of the size in front
    return qUncompress(packed + bytes);
}

// The streams of the file, unpacked; pictures come out as nonsense, which holds no drawing.
std::vector<QByteArray> streams(const QByteArray & file)
{
    std::vector<QByteArray> found;
    for (qsizetype at = file.indexOf("stream\n"); at >= 0; at = file.indexOf("stream\n", at + 1)) {
        if (at >= 3 && file.mid(at - 3, 3) == "end")
            continue;
        const qsizetype start = at + 7;
        const QByteArray bytes = file.mid(start, file.indexOf("endstream", start) - start);
        const bool is_packed = bytes.startsWith('x');
        found.push_back(is_packed ? inflated(bytes) : bytes);
    }
    return found;
}

// Follows the drawing's changes of place up to the picture, which fills the unit square.
QRectF picture_in(const QByteArray & drawing)
{
    QTransform now;
    std::vector<QTransform> kept;
    std::vector<double> numbers;
    QRectF picture;
    for (const QByteArray & word : drawing.simplified().split(' ')) {
        bool is_number = false;
        const double number = word.toDouble(&is_number);
        if (is_number) {
            numbers.push_back(number);
            continue;
        }
        if (word == "q")
            kept.push_back(now);
        if (word == "Q" && !kept.empty()) {
            now = kept.back();
            kept.pop_back();
        }
        if (word == "cm" && numbers.size() >= 6) {
            const double * const n = &numbers[numbers.size() - 6];
            now = QTransform(n[0], n[1], n[2], n[3], n[4], n[5]) * now;
        }
        if (word == "Do")
            picture = now.mapRect(QRectF(0, 0, 1, 1));
        numbers.clear();
    }
    return picture;
}

}  // namespace

pdf_page read_page(const std::string & path)
{
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.readAll();
    pdf_page page;
    const QRegularExpression box(QStringLiteral("/MediaBox \\[\\s*([\\d.]+) ([\\d.]+) ([\\d.]+) ([\\d.]+)"));
    auto boxes = box.globalMatch(QString::fromLatin1(bytes));
    while (boxes.hasNext()) {
        const auto match = boxes.next();
        page.paper = {match.captured(3).toDouble(), match.captured(4).toDouble()};
        ++page.pages;
    }
    for (const QByteArray & drawing : streams(bytes))
        if (drawing.contains(" Do"))
            page.picture = picture_in(drawing);
    return page;
}
