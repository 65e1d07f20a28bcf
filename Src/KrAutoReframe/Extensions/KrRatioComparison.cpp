#include <KrAutoReframe/Extensions/KrRatioComparison.h>

#include <KxWidgets/KxTopLevelWindowTitleBar.h>

#include <QHBoxLayout>

namespace
{

constexpr int CloseButton = 32;
constexpr QSize Ratios[] = {{9, 16}, {1, 1}, {4, 5}};

} // namespace

KrRatioComparison::KrRatioComparison(const IKxAutoReframeDecisions& service, QWidget* parent)
    : KxFramelessDialog(QString(), parent, true, true)
{
    setObjectName(QStringLiteral("KrAutoReframe_ratioComparison"));
    SetBottomBarVisible(false);
    GetTitleBar()->SetButtons(CloseButton);
    auto* const content = new QWidget(this);
    auto* const row = new QHBoxLayout(content);
    row->setContentsMargins(16, 16, 16, 16);
    row->setSpacing(16);
    for (const QSize& ratio : Ratios) {
        m_panes.append(new KrRatioPane(ratio, service, content));
        row->addWidget(m_panes.last());
    }
    SetContentWidget(content);
    RetranslateUi();
}

KrRatioComparison::~KrRatioComparison() = default;

void KrRatioComparison::Fill(const KrRatioPane::Source& source)
{
    for (KrRatioPane* const pane : qAsConst(m_panes)) {
        pane->Show(source);
    }
}

void KrRatioComparison::ShowFrame(int frame)
{
    for (KrRatioPane* const pane : qAsConst(m_panes)) {
        pane->ShowFrame(frame);
    }
}

void KrRatioComparison::Clear()
{
    for (KrRatioPane* const pane : qAsConst(m_panes)) {
        pane->Clear();
    }
}

void KrRatioComparison::RetranslateUi()
{
    SetTitleName(tr("Compare Aspect Ratios"), false);
}
