object GalleryForm: TGalleryForm
  Left = 80
  Top = 60
  ClientHeight = 720
  ClientWidth = 1180
  Caption = 'Gallery'
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = 'Liberation Sans'
  Font.Style = []
  OldCreateOrder = False
  Position = poDefault
  PixelsPerInch = 96
  TextHeight = 14
  object LeftPanel: TPanel
    Left = 0
    Top = 0
    Width = 190
    Height = 697
    Align = alLeft
    BevelOuter = bvNone
    BorderWidth = 6
    TabOrder = 0
    object PagePanel: TPanel
      Left = 6
      Top = 6
      Width = 178
      Height = 32
      Align = alTop
      BevelOuter = bvNone
      TabOrder = 0
      object PageBox: TComboBox
        Left = 0
        Top = 0
        Width = 178
        Height = 26
        Style = csDropDownList
        Anchors = [akLeft, akTop, akRight]
        ItemHeight = 14
        TabOrder = 0
        OnChange = PageChange
      end
    end
    object StateList: TListBox
      Left = 6
      Top = 38
      Width = 178
      Height = 653
      Align = alClient
      ItemHeight = 18
      TabOrder = 1
      OnClick = StateClick
    end
  end
  object RightPanel: TPanel
    Left = 800
    Top = 0
    Width = 380
    Height = 697
    Align = alRight
    BevelOuter = bvNone
    BorderWidth = 6
    TabOrder = 2
    object EditorPanel: TPanel
      Left = 6
      Top = 6
      Width = 368
      Height = 54
      Align = alTop
      BevelOuter = bvNone
      TabOrder = 0
      object NameLabel: TLabel
        Left = 0
        Top = 2
        Width = 368
        Height = 16
        Anchors = [akLeft, akTop, akRight]
        AutoSize = False
        Caption = 'Choose a property'
        ShowAccelChar = False
      end
      object ValueEdit: TEdit
        Left = 0
        Top = 22
        Width = 368
        Height = 26
        Anchors = [akLeft, akTop, akRight]
        Enabled = False
        TabOrder = 0
        OnExit = ValueExit
        OnKeyDown = ValueKeyDown
      end
      object ValueBox: TComboBox
        Left = 0
        Top = 22
        Width = 368
        Height = 26
        Style = csDropDownList
        Anchors = [akLeft, akTop, akRight]
        DropDownCount = 20
        ItemHeight = 14
        TabOrder = 1
        Visible = False
        OnChange = ValueChoose
      end
    end
    object PropertyList: TListView
      Left = 6
      Top = 60
      Width = 368
      Height = 631
      Align = alClient
      Columns = <
        item
          Caption = 'Property'
          Width = 190
        end
        item
          Caption = 'Value'
          Width = 156
        end>
      ColumnClick = False
      HideSelection = False
      ReadOnly = True
      RowSelect = True
      TabOrder = 1
      ViewStyle = vsReport
      OnDblClick = PropertyDblClick
      OnKeyDown = PropertyKeyDown
      OnSelectItem = PropertySelect
    end
  end
  object Stage: TPanel
    Left = 190
    Top = 0
    Width = 610
    Height = 697
    Align = alClient
    BevelOuter = bvNone
    BorderWidth = 6
    TabOrder = 1
  end
  object StatusBar: TStatusBar
    Left = 0
    Top = 697
    Width = 1180
    Height = 23
    Panels = <>
    SimplePanel = True
  end
  object Icons: TImageList
    Height = 12
    Width = 12
    Left = 220
    Top = 40
  end
end
