#pragma once

#include <QStyledItemDelegate>

/// Draws the videos of the library as cards: picture with the length on it, name, details.
class MediaCardDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    explicit MediaCardDelegate(QObject* parent);
    ~MediaCardDelegate() override;

    /// A card with its half of the gaps around it.
    static QSize CellSize();
    /// The card inside its cell.
    static QRect CardRect(const QRect& cell);
    /// The area of the picture, in widget pixels.
    static QSize PictureSize();

    /// Whether files that can be dropped are being dragged over the library.
    void SetDropActive(bool isActive);
    /// The dashed frame of the place where videos can be dropped.
    static void PaintDropFrame(QPainter& painter, const QRect& frame, bool isActive);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    void PaintCard(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
    void PaintPicture(QPainter& painter, const QRect& picture, const QModelIndex& index) const;
    void PaintLength(QPainter& painter, const QRect& picture, const QString& length) const;
    void PaintTexts(QPainter& painter, const QRect& card, const QModelIndex& index) const;

    bool m_isDropActive = false;
};
