#include <Apps/CropTracks/CropTrackParser.h>

#include <Apps/CropTracks/JsonReader.h>

#include <QCoreApplication>
#include <QIODevice>

#include <array>
#include <cmath>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CropTrackParser)
};

} // namespace

using Token = JsonReader::Token;

CropTrackParser::CropTrackParser(QString name, qint64 frameCount)
    : m_name(std::move(name))
    , m_frameCount(frameCount)
{
}

KxError CropTrackParser::NotATrack(const JsonReader& reader) const
{
    return Texts::tr("Cannot use %1: it is no crop track (line %2).").arg(m_name, QString::number(reader.Line()));
}

KxError CropTrackParser::BadFrame() const
{
    return Texts::tr("Cannot use %1: frame %2 is no rectangle inside the picture.")
        .arg(m_name, QString::number(m_track.crops.size()));
}

KxError CropTrackParser::Append(const QRectF& crop)
{
    if (m_track.crops.size() >= m_frameCount) {
        return Texts::tr("Cannot use %1: it holds more frames than the video, which has %2.")
            .arg(m_name, QString::number(m_frameCount));
    }
    constexpr double slack = 1e-6;
    const bool isFinite = std::isfinite(crop.x()) && std::isfinite(crop.y()) && std::isfinite(crop.width()) &&
                          std::isfinite(crop.height());
    const bool isInside = isFinite && crop.width() > 0.0 && crop.height() > 0.0 && crop.left() >= -slack &&
                          crop.top() >= -slack && crop.right() <= 1.0 + slack && crop.bottom() <= 1.0 + slack;
    if (!isInside) {
        return BadFrame();
    }
    m_track.crops.append(IKxAutoReframeResult(m_track.crops.size(), crop));
    return std::nullopt;
}

KxError CropTrackParser::ReadCsv(QIODevice& file)
{
    constexpr int longestLine = 512;
    file.readLine(longestLine); // the header
    while (!file.atEnd()) {
        const QByteArray line = file.readLine(longestLine).trimmed();
        if (line.isEmpty()) {
            continue;
        }
        const QList<QByteArray> cells = line.split(',');
        std::array<double, 4> values{};
        bool isValid = cells.size() == 5 && cells.at(0).toLongLong() == m_track.crops.size();
        for (std::size_t i = 0; isValid && i < values.size(); ++i) {
            values[i] = cells.at(static_cast<int>(i) + 1).toDouble(&isValid);
        }
        if (!isValid) {
            return BadFrame();
        }
        if (const KxError problem = Append({values[0], values[1], values[2], values[3]})) {
            return problem;
        }
    }
    return std::nullopt;
}

KxError CropTrackParser::ReadJson(QIODevice& file)
{
    JsonReader reader(file);
    if (reader.Next() != Token::BeginObject) {
        return NotATrack(reader);
    }
    Token token = reader.Next();
    while (token == Token::String) {
        const QString key = reader.Text();
        if (reader.Next() != Token::Colon) {
            return NotATrack(reader);
        }
        if (const KxError problem = ReadMember(reader, key)) {
            return problem;
        }
        token = reader.Next();
        if (token != Token::Comma) {
            break;
        }
        token = reader.Next();
        if (token != Token::String) {
            return NotATrack(reader);
        }
    }
    return token == Token::EndObject && reader.Next() == Token::End ? std::nullopt : NotATrack(reader);
}

KxError CropTrackParser::ReadMember(JsonReader& reader, const QString& key)
{
    if (key == QLatin1String("version")) {
        return ReadVersion(reader);
    }
    if (key == QLatin1String("aspect")) {
        return ReadAspect(reader);
    }
    if (key == QLatin1String("frames")) {
        return ReadFrames(reader);
    }
    if (key == QLatin1String("speed")) {
        const bool isText = reader.Next() == Token::String;
        m_track.speedName = isText ? reader.Text() : QString();
        return isText ? std::nullopt : NotATrack(reader);
    }
    if (key == QLatin1String("other_shapes")) {
        const bool isText = reader.Next() == Token::String;
        const bool isFitted = isText && reader.Text() == QLatin1String("fitted");
        m_track.otherShapes = isFitted ? KxRenderSource::OtherShapes::Fitted : KxRenderSource::OtherShapes::Stretched;
        return isText ? std::nullopt : NotATrack(reader);
    }
    return SkipValue(reader);
}

KxError CropTrackParser::ReadVersion(JsonReader& reader) const
{
    constexpr double known = 1.0;
    if (reader.Next() != Token::Number) {
        return NotATrack(reader);
    }
    if (reader.Value() == known) {
        return std::nullopt;
    }
    return Texts::tr("Cannot use %1: it is a crop track of version %2, and this program reads version 1.")
        .arg(m_name, QString::number(reader.Value()));
}

KxError CropTrackParser::ReadAspect(JsonReader& reader)
{
    constexpr double largest = 10000.0;
    std::array<int, 2> sides{};
    Token before = Token::BeginArray;
    for (int& side : sides) {
        const bool isSide = reader.Next() == before && reader.Next() == Token::Number && reader.Value() >= 1.0 &&
                            reader.Value() <= largest;
        if (!isSide) {
            return NotATrack(reader);
        }
        side = qRound(reader.Value());
        before = Token::Comma;
    }
    m_track.aspect = QSize(sides[0], sides[1]);
    return reader.Next() == Token::EndArray ? std::nullopt : NotATrack(reader);
}

KxError CropTrackParser::ReadFrames(JsonReader& reader)
{
    if (reader.Next() != Token::BeginArray) {
        return NotATrack(reader);
    }
    Token token = reader.Next();
    while (token == Token::BeginArray) {
        if (const KxError problem = ReadFrame(reader)) {
            return problem;
        }
        token = reader.Next();
        if (token == Token::EndArray) {
            return std::nullopt;
        }
        if (token != Token::Comma) {
            return NotATrack(reader);
        }
        token = reader.Next();
    }
    const bool isEmpty = token == Token::EndArray && m_track.crops.isEmpty();
    return isEmpty ? std::nullopt : BadFrame();
}

KxError CropTrackParser::ReadFrame(JsonReader& reader)
{
    std::array<double, 4> values{};
    for (std::size_t i = 0; i < values.size(); ++i) {
        if ((i > 0 && reader.Next() != Token::Comma) || reader.Next() != Token::Number) {
            return BadFrame();
        }
        values[i] = reader.Value();
    }
    return reader.Next() == Token::EndArray ? Append({values[0], values[1], values[2], values[3]}) : BadFrame();
}

KxError CropTrackParser::SkipValue(JsonReader& reader) const
{
    qint64 depth = 0;
    do {
        switch (reader.Next()) {
        case Token::BeginObject:
        case Token::BeginArray:
            ++depth;
            break;
        case Token::EndObject:
        case Token::EndArray:
            --depth;
            break;
        case Token::Colon:
        case Token::Comma:
            if (depth == 0) {
                return NotATrack(reader);
            }
            break;
        case Token::End:
        case Token::Bad:
            return NotATrack(reader);
        case Token::String:
        case Token::Number:
        case Token::Word:
            break;
        }
    } while (depth > 0);
    return depth == 0 ? std::nullopt : NotATrack(reader);
}
