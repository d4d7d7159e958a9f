object OrderForm: TForm
  Left = 192
  Top = 107
  ActiveControl = NameEdit
  AutoScroll = False
  BorderIcons = [biSystemMenu, biMinimize]
  BorderStyle = bsSingle
  Caption = 'Orders'
  ClientHeight = 420
  ClientWidth = 560
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -11
  Font.Name = 'MS Sans Serif'
  Font.Style = []
  HorzScrollBar.Range = 400
  Icon.Data = {
    0000010001000101000001002000300000001600000028000000010000000200}
  KeyPreview = True
  Menu = MainMenu
  OldCreateOrder = False
  PopupMenu = Popup
  Position = poScreenCenter
  ShowHint = True
  OnClose = FormClose
  OnCreate = FormCreate
  PixelsPerInch = 96
  TextHeight = 13
  object Status: TStatusBar
    Left = 0
    Top = 401
    Width = 560
    Height = 19
    Panels = <
      item
        Alignment = taCenter
        Text = 'ready'
        Width = 120
      end
      item
        Bevel = pbNone
        Width = 50
      end>
    SizeGrip = False
  end
  object Tools: TPanel
    Left = 0
    Top = 0
    Width = 560
    Height = 33
    Align = alTop
    BevelInner = bvLowered
    BorderWidth = 1
    FullRepaint = False
    TabOrder = 0
    object LeftTool: TSpeedButton
      Tag = 7
      Left = 4
      Top = 4
      Width = 23
      Height = 22
      Hint = 'Earlier'
      AllowAllUp = True
      GroupIndex = 1
      Down = True
      Flat = True
      Glyph.Data = {
        66000000424D6600000000000000360000002800000004000000040000000100
        18000000000030000000C40E0000C40E00000000000000000000FF00FFFF00FF
        FF00FFFF00FF0000C80000C88080808080800000C80000C88080808080800000
        C80000C8808080808080}
      Layout = blGlyphTop
      Margin = 2
      NumGlyphs = 2
      Spacing = 1
      OnClick = ToolClick
    end
    object RightTool: TSpeedButton
      Left = 28
      Top = 4
      Width = 23
      Height = 22
      AllowAllUp = True
      GroupIndex = 1
      Caption = '&R'
      Font.Charset = DEFAULT_CHARSET
      Font.Color = clNavy
      Font.Height = -11
      Font.Name = 'MS Sans Serif'
      Font.Style = [fsBold]
      ParentFont = False
    end
  end
  object NameLabel: TLabel
    Left = 8
    Top = 48
    Width = 28
    Height = 13
    Alignment = taRightJustify
    AutoSize = False
    Caption = '&Name'
    Color = clWindow
    FocusControl = NameEdit
    ParentColor = False
    Layout = tlCenter
    WordWrap = True
  end
  object NameEdit: TEdit
    Left = 80
    Top = 44
    Width = 121
    Height = 21
    CharCase = ecUpperCase
    HideSelection = False
    MaxLength = 40
    PopupMenu = Popup
    TabOrder = 1
    Text = 'NOBODY'
    OnChange = NameEditChange
  end
  object Secret: TEdit
    Left = 208
    Top = 44
    Width = 121
    Height = 21
    AutoSelect = False
    AutoSize = False
    BorderStyle = bsNone
    Color = clSilver
    OEMConvert = True
    ParentShowHint = False
    PasswordChar = '*'
    ReadOnly = True
    ShowHint = False
    TabOrder = 2
  end
  object Express: TCheckBox
    Left = 80
    Top = 72
    Width = 97
    Height = 17
    Alignment = taLeftJustify
    Caption = '&Express'
    Checked = True
    State = cbChecked
    TabOrder = 3
    OnClick = ExpressClick
  end
  object Gift: TCheckBox
    Left = 208
    Top = 72
    Width = 97
    Height = 17
    AllowGrayed = True
    Caption = 'Gift'
    State = cbGrayed
    TabOrder = 4
  end
  object Colours: TComboBox
    Left = 80
    Top = 96
    Width = 145
    Height = 21
    Style = csDropDownList
    DropDownCount = 12
    ItemHeight = 13
    ItemIndex = 1
    TabOrder = 5
    Text = 'green'
    Items.Strings = (
      'red'
      'green'
      'it''s blue')
  end
  object Town: TComboBox
    Left = 240
    Top = 96
    Width = 145
    Height = 21
    Anchors = [akLeft, akTop, akRight]
    ItemHeight = 13
    Sorted = True
    TabOrder = 6
    Text = 'Anywhere'
    Items.Strings = (
      'Bern'
      'Oslo')
  end
  object Count: TSpinEdit
    Left = 80
    Top = 124
    Width = 57
    Height = 22
    Increment = 5
    MaxValue = 95
    MinValue = 5
    TabOrder = 7
    Value = 25
  end
  object Sizes: TListBox
    Left = 80
    Top = 152
    Width = 121
    Height = 97
    Ctl3D = False
    ExtendedSelect = False
    ItemHeight = 13
    Items.Strings = (
      'small'
      'large')
    MultiSelect = True
    ParentCtl3D = False
    TabOrder = 8
  end
  object Lines: TListView
    Left = 208
    Top = 152
    Width = 250
    Height = 97
    Checkboxes = True
    Columns = <
      item
        Caption = 'Article'
        Width = 120
      end
      item
        Alignment = taRightJustify
        AutoSize = True
        Caption = 'Price'
      end>
    GridLines = True
    RowSelect = True
    TabOrder = 9
    ViewStyle = vsReport
    OnSelectItem = LinesSelectItem
  end
  object OkButton: TButton
    Left = 390
    Top = 360
    Width = 75
    Height = 25
    Anchors = [akRight, akBottom]
    Caption = 'OK'
    Default = True
    ModalResult = 1
    TabOrder = 10
  end
  object CancelButton: TButton
    Left = 472
    Top = 360
    Width = 75
    Height = 25
    Anchors = [akRight, akBottom]
    Cancel = True
    Caption = 'Cancel'
    DragMode = dmAutomatic
    Enabled = False
    ModalResult = 2
    TabOrder = 11
    Visible = False
  end
  object MainMenu: TMainMenu
    AutoHotkeys = maManual
    Images = Pictures
    Left = 16
    Top = 280
    object FileItem: TMenuItem
      Caption = '&File'
      object OpenItem: TMenuItem
        Caption = '&Open...'
        Default = True
        Hint = 'Opens an order'
        ImageIndex = 0
        ShortCut = 16463
        OnClick = OpenItemClick
      end
      object N1: TMenuItem
        Caption = '-'
      end
      object RecentItem: TMenuItem
        Caption = '&Recent'
        Enabled = False
        object FirstItem: TMenuItem
          Tag = 1
          Caption = 'first'
          Checked = True
          GroupIndex = 1
          RadioItem = True
        end
      end
    end
    object HelpItem: TMenuItem
      Caption = '&Help'
      Visible = False
    end
  end
  object Popup: TPopupMenu
    Alignment = paCenter
    AutoPopup = False
    OnPopup = PopupPopup
    Left = 48
    Top = 280
    object CopyItem: TMenuItem
      AutoCheck = True
      Caption = 'Copy'
    end
  end
  object Pictures: TImageList
    Left = 80
    Top = 280
  end
  object OpenDialog: TOpenDialog
    DefaultExt = 'ord'
    Filter = 'Orders|*.ord|All files|*'
    FilterIndex = 2
    Options = [ofHideReadOnly, ofAllowMultiSelect, ofFileMustExist]
    Title = 'Open an order'
    Left = 112
    Top = 280
  end
  object SaveDialog: TSaveDialog
    Left = 144
    Top = 280
  end
end
