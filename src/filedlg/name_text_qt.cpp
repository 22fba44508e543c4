#include "filedlg/name_text_qt.h"

#include <QStringDecoder>

#include "desk/ansi_qt.h"

QString Name_Text(const std::string& name) {
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder.decode(QByteArrayView(name.data(), static_cast<qsizetype>(name.size())));
    if (decoder.hasError() || text.contains(QChar::ReplacementCharacter)) text = From_ANSI(name);
    for (QChar& letter : text) {
        if (letter.category() == QChar::Other_Control) letter = ' ';
    }
    return text;
}
