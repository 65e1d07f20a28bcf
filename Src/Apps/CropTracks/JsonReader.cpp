#include <Apps/CropTracks/JsonReader.h>

#include <QIODevice>

#include <cstring>

JsonReader::JsonReader(QIODevice& device)
    : m_device(device)
{
    constexpr int mostAtOnce = 64 * 1024;
    m_buffer.reserve(mostAtOnce);
    m_buffer = m_device.read(mostAtOnce);
    if (m_buffer.startsWith("\xEF\xBB\xBF")) {
        m_position = 3;
    }
}

int JsonReader::Peek()
{
    if (m_position == m_buffer.size()) {
        constexpr int mostAtOnce = 64 * 1024;
        m_buffer = m_device.read(mostAtOnce);
        m_position = 0;
        if (m_buffer.isEmpty()) {
            return -1;
        }
    }
    return static_cast<unsigned char>(m_buffer.at(m_position));
}

int JsonReader::Take()
{
    const int byte = Peek();
    if (byte >= 0) {
        ++m_position;
    }
    if (byte == '\n') {
        ++m_line;
    }
    return byte;
}

JsonReader::Token JsonReader::Next()
{
    while (Peek() == ' ' || Peek() == '\t' || Peek() == '\r' || Peek() == '\n') {
        Take();
    }
    Token token = Token::Bad;
    switch (Peek()) {
    case -1:
        return m_isBad ? Token::Bad : Token::End;
    case '"':
        token = ReadString();
        break;
    case '{':
    case '}':
    case '[':
    case ']':
    case ':':
    case ',': {
        constexpr char marks[] = "{}[]:,";
        token = static_cast<Token>(std::strchr(marks, Take()) - marks);
        break;
    }
    default:
        token = (Peek() >= '0' && Peek() <= '9') || Peek() == '-' ? ReadNumber() : ReadWord();
    }
    m_isBad = m_isBad || token == Token::Bad;
    return m_isBad ? Token::Bad : token;
}

JsonReader::Token JsonReader::ReadString()
{
    Take();
    QByteArray text;
    while (text.size() <= MostTextBytes) {
        const int byte = Take();
        if (byte == '"') {
            m_text = QString::fromUtf8(text);
            return Token::String;
        }
        if (byte < ' ' || (byte == '\\' && !ReadEscape(text))) {
            return Token::Bad;
        }
        if (byte != '\\') {
            text += static_cast<char>(byte);
        }
    }
    return Token::Bad;
}

bool JsonReader::ReadEscape(QByteArray& text)
{
    constexpr char names[] = "\"\\/bfnrt";
    constexpr char meanings[] = "\"\\/\b\f\n\r\t";
    const int name = Take();
    if (name == 'u') {
        // A surrogate pair comes as two escapes; where it matters, programs write UTF-8 as it is.
        QByteArray digits;
        for (int i = 0; i < 4; ++i) {
            digits += static_cast<char>(Take());
        }
        bool isNumber = false;
        const ushort code = digits.toUShort(&isNumber, 16);
        text += QString(QChar(code)).toUtf8();
        return isNumber;
    }
    const char* const found = name > 0 ? std::strchr(names, name) : nullptr;
    if (found == nullptr) {
        return false;
    }
    text += meanings[found - names];
    return true;
}

JsonReader::Token JsonReader::ReadNumber()
{
    constexpr int mostDigits = 64;
    QByteArray digits;
    while (digits.size() <= mostDigits && Peek() > 0 && std::strchr("0123456789+-.eE", Peek()) != nullptr) {
        digits += static_cast<char>(Take());
    }
    bool isNumber = false;
    m_value = digits.toDouble(&isNumber);
    return isNumber ? Token::Number : Token::Bad;
}

JsonReader::Token JsonReader::ReadWord()
{
    constexpr int longest = 5;
    QByteArray word;
    while (word.size() <= longest && Peek() >= 'a' && Peek() <= 'z') {
        word += static_cast<char>(Take());
    }
    return word == "true" || word == "false" || word == "null" ? Token::Word : Token::Bad;
}
