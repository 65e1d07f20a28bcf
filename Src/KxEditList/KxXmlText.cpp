#include <KxEditList/KxXmlText.h>

KxXmlText::KxXmlText()
    : m_xml(&m_text)
{
    m_xml.setAutoFormatting(true);
    m_xml.writeStartDocument();
}

void KxXmlText::DocType(const QString& declaration)
{
    m_xml.writeDTD(declaration);
}

void KxXmlText::Start(const char* element, std::initializer_list<Attribute> attributes)
{
    m_xml.writeStartElement(QLatin1String(element));
    for (const Attribute& attribute : attributes) {
        Add(attribute);
    }
}

void KxXmlText::Add(const Attribute& attribute)
{
    m_xml.writeAttribute(QLatin1String(attribute.name), attribute.value);
}

void KxXmlText::Characters(const QString& text)
{
    m_xml.writeCharacters(text);
}

void KxXmlText::End()
{
    m_xml.writeEndElement();
}

void KxXmlText::Leaf(const char* element, std::initializer_list<Attribute> attributes)
{
    Start(element, attributes);
    End();
}

QByteArray KxXmlText::Finish()
{
    m_xml.writeEndDocument();
    return m_text;
}
