#include "controlfactory.h"

#include "controls.h"
#include "shapes.h"
#include "updownarrows.h"

#include <QGroupBox>

namespace vorkan {

namespace {

void applyFont(QWidget& widget, const ControlProps& props)
{
    if (!props.bold && !props.underline && props.textSize == 0)
        return;
    QFont font = widget.font();
    font.setBold(props.bold);
    font.setUnderline(props.underline);
    if (props.textSize > 0)
        font.setPointSize(props.textSize);
    widget.setFont(font);
}

QWidget* makeTextField(const LayoutRow& row, QWidget* parent)
{
    auto* field = new TextField(parent);
    if (row.props.maskDigits > 0)
        field->setDigitMask(row.props.maskDigits, row.props.groupedDigits);
    field->setReadOnly(row.props.readOnly);
    field->setText(row.text.toString());
    if (row.props.centred)
        field->setAlignment(Qt::AlignCenter);
    return field;
}

QWidget* makeStaticText(const LayoutRow& row, QWidget* parent)
{
    auto* label = new StaticText(parent);
    label->setText(row.text.toString());
    label->setAlignment((row.props.centred ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignTop);
    if (row.props.selectable)
        label->setSelectable();
    return label;
}

QWidget* makeSlider(const LayoutRow& row, QWidget* parent)
{
    const SliderProps& props = row.props.slider;
    auto* slider = new Slider(parent);
    slider->setRange(props.minimum, props.maximum);
    slider->setValue(props.value);
    slider->setSingleStep(props.lineStep);
    slider->setPageStep(props.pageStep);
    slider->setTracking(props.liveScroll);
    if (props.ticks) {
        slider->setTickPosition(QSlider::TicksBelow);
        slider->setTickInterval(props.pageStep);
    }
    return slider;
}

QWidget* makeShape(const LayoutRow& row, QWidget* parent)
{
    const ShapeProps& shape = row.props.shape;
    switch (row.kind) {
    case Kind::Rectangle:
        return new Rectangle(parent, QColor::fromRgba(shape.fill), QColor::fromRgba(shape.border),
                             QColor::fromRgba(shape.bottomRight), shape.borderWidth);
    case Kind::RoundRectangle:
        return new RoundRectangle(parent, QColor::fromRgba(shape.fill),
                                  QColor::fromRgba(shape.border), shape.borderWidth,
                                  QSize(shape.oval, shape.oval));
    case Kind::Line:
        return new Line(parent, row.props.line, QColor::fromRgba(shape.border), shape.borderWidth);
    default:
        return new Separator(parent);
    }
}

QWidget* makeWidget(const LayoutRow& row, QWidget* parent)
{
    switch (row.kind) {
    case Kind::TextField:
        return makeTextField(row, parent);
    case Kind::StaticText:
        return makeStaticText(row, parent);
    case Kind::BevelButton: {
        auto* button = new BevelButton(parent);
        button->setText(row.text.toString());
        return button;
    }
    case Kind::PushButton: {
        auto* button = new PushButton(parent);
        button->setText(row.text.toString());
        return button;
    }
    case Kind::PopupMenu:
        return new PopupMenu(parent);
    case Kind::Slider:
        return makeSlider(row, parent);
    case Kind::UpDownArrows:
        return new UpDownArrows(parent);
    case Kind::GroupBox: {
        auto* box = new QGroupBox(parent);
        box->setTitle(row.text.toString());
        return box;
    }
    default:
        return makeShape(row, parent);
    }
}

} // namespace

QWidget* makeControl(const LayoutRow& row, QWidget* parent)
{
    QWidget* widget = makeWidget(row, parent);
    applyFont(*widget, row.props);
    if (!row.props.helpTag.isEmpty())
        widget->setToolTip(row.props.helpTag.toString());
    widget->setEnabled(row.props.enabled);
    return widget;
}

} // namespace vorkan
