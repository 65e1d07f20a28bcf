#include <Apps/AutoReframe/MainWindow.h>

#include <Apps/AutoReframe/LanguageChoice.h>
#include <KxCore/KxLanguage.h>

#include <KxWidgets/KxUIStyle.h>

#include <QActionGroup>
#include <QApplication>
#include <QMenu>

void MainWindow::AddLanguages(QMenu& menu)
{
    menu.setObjectName(QStringLiteral("LanguageMenu"));
    auto* const group = new QActionGroup(&menu);
    const QString saved = LanguageChoice::Saved();
    const auto add = [&](const QString& name, const QString& code) {
        QAction* const action = menu.addAction(name, this, [code] {
            LanguageChoice::Save(code);
            KxUIStyle::InstallTranslation(*qApp, LanguageChoice::Of(QString()));
        });
        action->setCheckable(true);
        action->setChecked(code == saved);
        group->addAction(action);
    };
    add(tr("Language of the System"), QString());
    menu.addSeparator();
    for (const QString& code : KxLanguage::Codes()) {
        add(KxLanguage::NameOf(code), code);
    }
}
