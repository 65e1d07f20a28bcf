#pragma once

#include <QByteArray>
#include <QString>

class QIODevice;

/// Reads JSON token by token, so that memory does not grow with the file. The caller checks the order of the tokens.
class JsonReader
{
public:
    enum class Token {
        BeginObject,
        EndObject,
        BeginArray,
        EndArray,
        Colon,
        Comma,
        String,
        Number,
        Word, ///< true, false, null
        End,
        Bad ///< not JSON, longer than MostTextBytes, or unreadable; so is every token after it
    };
    /// The longest string or number.
    static constexpr int MostTextBytes = 64 * 1024;

    /// `device` is borrowed and open.
    explicit JsonReader(QIODevice& device);

    Token Next();
    /// The content of the last String.
    const QString& Text() const { return m_text; }
    /// The value of the last Number.
    double Value() const { return m_value; }
    /// Of the last token, counted from 1.
    int Line() const { return m_line; }

private:
    /// The next byte, or -1 at the end.
    int Peek();
    int Take();
    Token ReadString();
    bool ReadEscape(QByteArray& text);
    Token ReadNumber();
    Token ReadWord();

    QIODevice& m_device;
    QByteArray m_buffer;
    int m_position = 0;
    int m_line = 1;
    bool m_isBad = false;
    QString m_text;
    double m_value = 0.0;
};
