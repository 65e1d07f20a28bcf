#include <KxWidgets/KxWidget.h>

#include <QCoreApplication>
#include <QEvent>

#include <gtest/gtest.h>

namespace
{

class Translated : public KxWidget
{
public:
    Translated()
        : KxWidget(nullptr)
    {
    }

    int translations = 0;

protected:
    void RetranslateUi() override { ++translations; }
};

} // namespace

TEST(KxWidget, IsTranslatedWhenTheLanguageChangesAndOnlyThen)
{
    Translated widget;
    for (const QEvent::Type type : {QEvent::FontChange, QEvent::EnabledChange, QEvent::StyleChange}) {
        QEvent event(type);
        QCoreApplication::sendEvent(&widget, &event);
    }
    EXPECT_EQ(widget.translations, 0);
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&widget, &event);
    EXPECT_EQ(widget.translations, 1);
}
