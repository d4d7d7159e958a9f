#pragma once

#include <memory>

#include "vcl/platform/qt/QtWindow.h"

namespace vcl::qt
{

/// A window of the kind Style names below a widget, or without one.
std::shared_ptr<TWindow> MakeWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent);

std::shared_ptr<TWindow> MakeFormWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent);

// One for each family of native peers.
std::shared_ptr<TWindow> MakeEditWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent);
std::shared_ptr<TWindow> MakeButtonWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent);
std::shared_ptr<TWindow> MakeLabelWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent);
std::shared_ptr<TWindow> MakeSpinWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent);
std::shared_ptr<TWindow> MakeComboWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent);
std::shared_ptr<TWindow> MakeListWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent);
std::shared_ptr<TWindow> MakeListViewWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent);
std::shared_ptr<TWindow> MakeStatusBarWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent);

} // namespace vcl::qt
