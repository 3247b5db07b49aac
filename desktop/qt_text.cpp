#include "desktop/qt_text.h"

#include <QStringDecoder>

QString shown(const std::string & bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(QByteArray::fromStdString(bytes));
    return decoder.hasError() ? QString::fromLatin1(QByteArray::fromStdString(bytes)) : text;
}

std::string bytes_of(const QString & text)
{
    return text.toStdString();
}
