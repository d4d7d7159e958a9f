#include "vcl/platform/qt/QtWindowKinds.h"

#include "vcl/platform/qt/QtFrame.h"

namespace vcl::qt
{

std::shared_ptr<TWindow> MakeWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent)
{
    switch (Style.Kind) {
    case TWindowKind::Client:
        break;
    case TWindowKind::Form:
    case TWindowKind::Hint:
        return MakeFormWindow(Owner, Style, Parent);
    case TWindowKind::Label:
        return MakeLabelWindow(Owner, Style, Parent);
    case TWindowKind::Button:
    case TWindowKind::ToolButton:
    case TWindowKind::CheckBox:
        return MakeButtonWindow(Owner, Style, Parent);
    case TWindowKind::Edit:
        return MakeEditWindow(Owner, Style, Parent);
    case TWindowKind::SpinEdit:
        return MakeSpinWindow(Owner, Style, Parent);
    case TWindowKind::ComboBox:
        return MakeComboWindow(Owner, Style, Parent);
    case TWindowKind::ListBox:
        return MakeListWindow(Owner, Style, Parent);
    case TWindowKind::ListView:
        return MakeListViewWindow(Owner, Style, Parent);
    case TWindowKind::StatusBar:
        return MakeStatusBarWindow(Owner, Style, Parent);
    }
    return std::make_shared<TFrameWindow>(Owner, Style, Parent);
}

} // namespace vcl::qt
