#pragma once

#include <QByteArray>
#include <QString>
#include <QXmlStreamWriter>

#include <initializer_list>

/// Writes indented XML into memory.
class KxXmlText
{
public:
    struct Attribute {
        const char* name;
        QString value;
    };

    KxXmlText();
    Q_DISABLE_COPY_MOVE(KxXmlText)

    void DocType(const QString& declaration);
    void Start(const char* element, std::initializer_list<Attribute> attributes = {});
    /// Of the element that was started last.
    void Add(const Attribute& attribute);
    void Characters(const QString& text);
    void End();
    /// An element without children.
    void Leaf(const char* element, std::initializer_list<Attribute> attributes);
    /// Ends all elements.
    QByteArray Finish();

private:
    QByteArray m_text;
    QXmlStreamWriter m_xml;
};
