#include "tipwidget.h"

#include <QStyleOption>
#include <QStylePainter>
#include <QToolTip>

namespace vorkan {

TipWidget::TipWidget(QWidget* owner) : QLabel(owner, Qt::ToolTip | Qt::FramelessWindowHint)
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setTextFormat(Qt::PlainText);
    setForegroundRole(QPalette::ToolTipText);
    setBackgroundRole(QPalette::ToolTipBase);
    setPalette(QToolTip::palette());
    setFont(QToolTip::font());
    setMargin(1 + style()->pixelMetric(QStyle::PM_ToolTipLabelFrameWidth, nullptr, this));
    expiry_.setSingleShot(true);
    connect(&expiry_, &QTimer::timeout, this, &QWidget::hide);
}

void TipWidget::showAt(const QString& lines, QPoint corner, int hideAfterMs)
{
    expiry_.stop();
    if (hideAfterMs > 0)
        expiry_.start(hideAfterMs);
    sizeFor(lines);
    move(corner);
    show();
    raise();
}

QSize TipWidget::sizeFor(const QString& lines)
{
    setText(lines);
    adjustSize();
    return size();
}

void TipWidget::paintEvent(QPaintEvent* event)
{
    QStylePainter painter(this);
    QStyleOptionFrame frame;
    frame.initFrom(this);
    painter.drawPrimitive(QStyle::PE_PanelTipLabel, frame);
    painter.end();
    QLabel::paintEvent(event);
}

} // namespace vorkan
