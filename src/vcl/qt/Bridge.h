#pragma once

#include <QImage>
#include <QWidget>

#include "vcl/qt/QtHost.h"

namespace vcl
{

/// The widget that shows Control in a program's own layouts:
///
///     TKSTimeView* View = vcl::New<TKSTimeView>(nullptr);
///     Layout->addWidget(vcl::WidgetOf(View));
///
/// Control gets an internal host as its parent, which passes on font and colours of the widget's surroundings
/// and takes part in the program's focus order. The widget belongs to the caller (a layout or a parent widget
/// takes it, as usual); Control keeps its own owner, and either may go first: without the control the widget
/// is empty, without the widget the control has no parent again. Its size hint is the control's size at the
/// time of this call.
///
/// Asked again, it answers the same widget. Raises EInvalidOperation when Control has another parent.
QWidget* WidgetOf(TWinControl* Control);

/// A picture of a widget of the program with the controls embedded in it, at Scale device pixels a unit; the
/// widget need not be on the screen.
QImage PictureOf(QWidget* Widget, double Scale = 1.0);

} // namespace vcl
