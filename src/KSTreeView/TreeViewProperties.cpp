// The published properties and events of the view, with their declared defaults.

#include "KSTreeView/TreeView.h"
#include "vcl/graphics/ImageList.h"

using vcl::Declared;
using vcl::Publish;
using vcl::Published;

const vcl::TClass& TCustomKSTreeView::StaticClass()
{
    static const vcl::TClass Class =
        vcl::DefineClass<TCustomKSTreeView, vcl::TCustomControl>("TCustomKSTreeView");
    return Class;
}

const vcl::TClass& TKSTreeView::StaticClass()
{
    using T = TCustomKSTreeView;
    static const vcl::TClass Class = vcl::DefineClass<TKSTreeView, TCustomKSTreeView>(
        "TKSTreeView",
        {
            Published<&T::GetShowButtons, &T::SetShowButtons>("ShowButtons").Default(true),
            Published<&T::GetBorderStyle, &T::SetBorderStyle>("BorderStyle")
                .Default(vcl::TBorderStyle::bsSingle),
            Published<&T::GetShowLines, &T::SetShowLines>("ShowLines").Default(true),
            Published<&T::GetShowRoot, &T::SetShowRoot>("ShowRoot").Default(true),
            Published<&T::GetNodeWidth, &T::SetNodeWidth>("NodeWidth").Default(60),
            Published<&T::GetNodeHeight, &T::SetNodeHeight>("NodeHeight").Default(30),
            Published<&T::GetNodeColor, &T::SetNodeColor>("NodeColor").Default(vcl::clYellow),
            Published<&T::GetNodePenColor, &T::SetNodePenColor>("NodePenColor").Default(vcl::clGray),
            Published<&T::GetNodeImageSide, &T::SetNodeImageSide>("NodeImageSide")
                .Default(TKSTVNodeImageSide::nisLeft),
            Published<&T::GetNodeStyle, &T::SetNodeStyle>("NodeStyle").Default(TKSTVNodeStyle::nsShadowed),
            Published<&T::GetButtonSize, &T::SetButtonSize>("ButtonSize").Default(5),
            Published<&T::GetButtonColor, &T::SetButtonColor>("ButtonColor").Default(vcl::clWhite),
            Published<&T::GetSelectedNodeColor, &T::SetSelectedNodeColor>("SelectedNodeColor")
                .Default(vcl::clRed),
            Published<&T::GetHiddenSelectedNodeColor, &T::SetHiddenSelectedNodeColor>(
                "HiddenSelectedNodeColor")
                .Default(vcl::clBtnFace),
            Published<&T::GetLineStyle, &T::SetLineStyle>("LineStyle").Default(vcl::TPenStyle::psSolid),
            Published<&T::GetLineColor, &T::SetLineColor>("LineColor").Default(vcl::clBlue),
            Published<&T::GetVertSpacing, &T::SetVertSpacing>("VertSpacing").Default(20),
            Published<&T::GetHorzSpacing, &T::SetHorzSpacing>("HorzSpacing").Default(20),
            Published<&T::GetRightToLeft, &T::SetRightToLeft>("RightToLeft").Default(false),
            Published<&T::GetDefaultDrawing, &T::SetDefaultDrawing>("DefaultDrawing").Default(true),
            Published<&T::GetReadOnly, &T::SetReadOnly>("ReadOnly").Default(false),
            Published<&T::GetHideSelection, &T::SetHideSelection>("HideSelection").Default(true),
            Published<&T::GetItems, &T::SetItems>("Items"),
            Published<&T::GetImages, &T::SetImages>("Images"),

            Publish("Align"),
            Publish("Enabled"),
            Publish("Font"),
            Publish("Color").Default(vcl::clWindow),
            Publish("ParentColor").Default(false),
            Publish("ParentCtl3D"),
            Publish("Ctl3D"),
            Publish("TabOrder"),
            Publish("TabStop").Default(true),
            Publish("Visible"),
            Publish("PopupMenu"),
            Publish("ParentFont"),
            Publish("ParentShowHint"),
            Publish("ShowHint"),
            Publish("Anchors"),
            Publish("Constraints"),

            Publish("OnClick"),
            Publish("OnEnter"),
            Publish("OnExit"),
            Publish("OnDragDrop"),
            Publish("OnDragOver"),
            Publish("OnStartDrag"),
            Publish("OnEndDrag"),
            Publish("OnMouseDown"),
            Publish("OnMouseMove"),
            Publish("OnMouseUp"),
            Publish("OnDblClick"),
            Publish("OnKeyDown"),
            Publish("OnKeyPress"),
            Publish("OnKeyUp"),
            Publish("OnCanResize"),
            Publish("OnConstrainedResize"),
            Publish("OnDockDrop"),
            Publish("OnDockOver"),
            Publish("OnEndDock"),
            Publish("OnGetSiteInfo"),
            Publish("OnResize"),
            Publish("OnStartDock"),
            Publish("OnUnDock"),

            Published<&T::OnDrawNode>("OnDrawNode"),
            Published<&T::OnGetImageIndex>("OnGetImageIndex"),
            Published<&T::OnDeletion>("OnDeletion"),
            Published<&T::OnExpanding>("OnExpanding"),
            Published<&T::OnExpanded>("OnExpanded"),
            Published<&T::OnCollapsing>("OnCollapsing"),
            Published<&T::OnCollapsed>("OnCollapsed"),
            Published<&T::OnChanging>("OnChanging"),
            Published<&T::OnChange>("OnChange"),
            Published<&T::OnEditing>("OnEditing"),
            Published<&T::OnEdited>("OnEdited"),
        });
    return Class;
}
