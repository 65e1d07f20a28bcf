#pragma once

#include <KrAutoReframe/Player/KrAutoReframePlayerControlBar.h>
#include <KrAutoReframe/Player/KrAutoReframePlayerToolSlider.h>
#include <Tests/KrAutoReframe/Dialog/DialogFixture.h>

#include <KrAutoReframe/KrAutoReframeExtensions.h>
#include <KxWidgets/KxComboBox.h>

#include <QMap>

/// A host that keeps the state of each video.
class StateKeeper : public KrAutoReframeExtensions
{
public:
    KrAutoReframeState LoadState(const QString& path) override
    {
        loaded.append(path);
        return states.value(path);
    }
    void OnStateChanged(const QString& path, const KrAutoReframeState& state) override
    {
        states.insert(path, state);
        ++changes;
    }

    QMap<QString, KrAutoReframeState> states;
    QStringList loaded;
    int changes = 0;
};

/// The dialog with its extensions turned on, over a service that offers its shots.
class ExtendedDialogTest : public DialogTest
{
protected:
    ExtendedDialogTest() { MakeExtended(); }
    ~ExtendedDialogTest() override { dialog.reset(); }

    void MakeExtended()
    {
        Make(nullptr);
        dialog->SetExtensions(keeper);
    }

    KxComboBox& Ratios() const
    {
        return *panel->findChild<KxComboBox*>(QStringLiteral("KrAutoReframePropertyPanel_aspectRatio"));
    }
    KxComboBox& Speeds() const
    {
        return *panel->findChild<KxComboBox*>(QStringLiteral("KrAutoReframePropertyPanel_motionSpeed"));
    }
    QString Line(const char* name) const
    {
        const auto* const label = panel->findChild<KxLabel*>(QLatin1String(name));
        return label != nullptr && !label->isHidden() ? label->text() : QString();
    }
    QString Hint() const { return Line("KrAutoReframePropertyPanel_hint"); }
    QString HintRole() const
    {
        return panel->findChild<KxLabel*>(QStringLiteral("KrAutoReframePropertyPanel_hint"))
            ->property("textRole")
            .toString();
    }
    QString Fact() const { return Line("KrAutoReframePropertyPanel_shots"); }
    QAbstractButton& BarButton(const char* name) const
    {
        return *view->findChild<QAbstractButton*>(QLatin1String(name));
    }
    KrAutoReframeState& StateOf(const QString& path) { return keeper.states[path]; }

    const QString clip = QStringLiteral("/v/clip.mp4");
    StateKeeper keeper;
    /// Only as long as no other one is offered.
    FakeHost::ServiceWithShots& service = FakeHost::OfferShots();
};
