#pragma once

#include <QAbstractButton>

/// A button that is a small text in the accent colour.
class LinkButton : public QAbstractButton
{
    Q_OBJECT
public:
    explicit LinkButton(QWidget* parent);
    ~LinkButton() override;

    QSize sizeHint() const override;

protected:
    void enterEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
};
