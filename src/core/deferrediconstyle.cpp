#include "deferrediconstyle.h"

#include <QIconEngine>
#include <QPainter>

namespace vorkan {

namespace {

// An icon of the style's own, asked of the style the first time it is needed.
class DeferredIconEngine : public QIconEngine {
public:
    DeferredIconEngine(const QStyle& style, QStyle::StandardPixmap which)
        : style_(style), which_(which)
    {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().actualSize(size, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().pixmap(size, mode, state);
    }
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                         qreal scale) override
    {
        return icon().pixmap(size, scale, mode, state);
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override
    {
        return icon().availableSizes(mode, state);
    }
    // The style's icon is not null: no need to read it to say so.
    bool isNull() override { return false; }
    QIconEngine* clone() const override { return new DeferredIconEngine(*this); }

private:
    const QIcon& icon()
    {
        if (!read_) {
            icon_ = style_.standardIcon(which_);
            read_ = true;
        }
        return icon_;
    }

    const QStyle& style_;
    QStyle::StandardPixmap which_;
    QIcon icon_;
    bool read_ = false;
};

} // namespace

QIcon DeferredIconStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                      const QWidget* widget) const
{
    if (icon == SP_ToolBarHorizontalExtensionButton && !option)
        return QIcon(new DeferredIconEngine(*baseStyle(), icon));
    return QProxyStyle::standardIcon(icon, option, widget);
}

} // namespace vorkan
