// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <random>

#include <QString>
#include <QStringList>

/// Texts of at least eight units, the same in every run. Each is drawn from a handful of all the
/// pieces, so that rare neighbours meet often.
class RandomTexts
{
public:
    QString next()
    {
        const QStringList pieces = drawPieces(2 + below(6));
        const int length = below(32) == 0 ? 8 + below(200) : 8 + below(20);
        QString text;
        while (text.size() < length) {
            text += pieces[below(static_cast<int>(pieces.size()))];
        }
        return text;
    }

private:
    static QStringList allPieces()
    {
        QStringList pieces;
        for (const char16_t unit : std::u16string(u"axZ07_::://\\\\.. -\n\r\t\u00a0\u2028"
                                                  u"\u0301\u0903\u20dd\u00e9\u0394\u4e2d\u0663"
                                                  u"\u2167\u00bd\u203f\uff0f\uffff")) {
            pieces << QString(QChar(unit));
        }
        pieces << QString(QChar(0)) << QString(QChar(0xd83d)) << QString(QChar(0xdc00));
        for (const char16_t *piece :
             {u"\U0001f600", u"\U00010400", u"file", u"smb", u"FILE", u"SMB", u"File", u"file://",
              u"smb:\\\\", u"C:\\", u"://", u"a::", u".:", u" /"}) {
            pieces << QString::fromUtf16(piece);
        }
        return pieces;
    }

    QStringList drawPieces(int count)
    {
        QStringList pieces;
        for (int i = 0; i < count; ++i) {
            pieces << m_pieces[below(static_cast<int>(m_pieces.size()))];
        }
        return pieces;
    }

    int below(int bound)
    {
        return static_cast<int>(m_random() % static_cast<std::uint32_t>(bound));
    }

    const QStringList m_pieces = allPieces();
    std::mt19937 m_random{20261120};
};
