object ChartForm: TChartForm
  Left = 80
  Top = 60
  Width = 1100
  Height = 760
  Caption = 'Chart'
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = 'Liberation Sans'
  Font.Style = []
  Menu = MainMenu
  OldCreateOrder = False
  Position = poDefault
  ShowHint = True
  OnCloseQuery = FormCloseQuery
  PixelsPerInch = 96
  TextHeight = 14
  object ToolPanel: TPanel
    Left = 0
    Top = 0
    Width = 1100
    Height = 36
    Align = alTop
    BevelOuter = bvNone
    TabOrder = 0
    object OpenButton: TSpeedButton
      Left = 6
      Top = 4
      Width = 58
      Height = 28
      Hint = 'Open a chart (Ctrl+O)'
      Caption = 'Open...'
      Flat = True
      OnClick = OpenClick
    end
    object SaveButton: TSpeedButton
      Left = 66
      Top = 4
      Width = 48
      Height = 28
      Hint = 'Save (Ctrl+S)'
      Caption = 'Save'
      Flat = True
      OnClick = SaveClick
    end
    object AddChildButton: TSpeedButton
      Left = 126
      Top = 4
      Width = 72
      Height = 28
      Hint = 'Add a box below (Ins)'
      Caption = 'Add below'
      Flat = True
      OnClick = AddChildClick
    end
    object AddSiblingButton: TSpeedButton
      Left = 200
      Top = 4
      Width = 80
      Height = 28
      Hint = 'Add a box beside (Shift+Ins)'
      Caption = 'Add beside'
      Flat = True
      OnClick = AddSiblingClick
    end
    object RenameButton: TSpeedButton
      Left = 282
      Top = 4
      Width = 62
      Height = 28
      Hint = 'Rename the box (F2)'
      Caption = 'Rename'
      Flat = True
      OnClick = RenameClick
    end
    object DeleteButton: TSpeedButton
      Left = 346
      Top = 4
      Width = 56
      Height = 28
      Hint = 'Delete the box and what is below it (Del)'
      Caption = 'Delete'
      Flat = True
      OnClick = DeleteClick
    end
    object ExpandButton: TSpeedButton
      Left = 414
      Top = 4
      Width = 74
      Height = 28
      Hint = 'Expand all boxes (Ctrl+E)'
      Caption = 'Expand all'
      Flat = True
      OnClick = ExpandAllClick
    end
    object CollapseButton: TSpeedButton
      Left = 490
      Top = 4
      Width = 80
      Height = 28
      Hint = 'Collapse all boxes (Ctrl+Shift+E)'
      Caption = 'Collapse all'
      Flat = True
      OnClick = CollapseAllClick
    end
    object PdfButton: TSpeedButton
      Left = 582
      Top = 4
      Width = 44
      Height = 28
      Hint = 'Export as a PDF document'
      Caption = 'PDF...'
      Flat = True
      OnClick = ExportPdfClick
    end
    object SvgButton: TSpeedButton
      Left = 628
      Top = 4
      Width = 44
      Height = 28
      Hint = 'Export as an SVG drawing'
      Caption = 'SVG...'
      Flat = True
      OnClick = ExportSvgClick
    end
    object PngButton: TSpeedButton
      Left = 674
      Top = 4
      Width = 44
      Height = 28
      Hint = 'Export as a PNG picture'
      Caption = 'PNG...'
      Flat = True
      OnClick = ExportPngClick
    end
    object PrintButton: TSpeedButton
      Left = 720
      Top = 4
      Width = 52
      Height = 28
      Hint = 'Print (Ctrl+P)'
      Caption = 'Print...'
      Flat = True
      OnClick = PrintClick
    end
  end
  object TreeView: TKSTreeView
    Left = 0
    Top = 36
    Width = 1100
    Height = 680
    NodeWidth = 110
    NodeHeight = 26
    ButtonColor = clBtnFace
    LineColor = clGray
    VertSpacing = 26
    HorzSpacing = 16
    HideSelection = False
    Align = alClient
    TabOrder = 1
    OnDragDrop = ViewDragDrop
    OnDragOver = ViewDragOver
    OnMouseDown = ViewMouseDown
    OnKeyDown = ViewKeyDown
    OnChange = ViewChange
    OnEdited = ViewEdited
  end
  object StatusBar: TStatusBar
    Left = 0
    Top = 716
    Width = 1100
    Height = 24
    Panels = <
      item
        Width = 260
      end
      item
        Width = 50
      end>
  end
  object MainMenu: TMainMenu
    Left = 16
    Top = 60
    object FileMenu: TMenuItem
      Caption = '&File'
      object OpenItem: TMenuItem
        Caption = '&Open...'
        ShortCut = 16463
        OnClick = OpenClick
      end
      object SaveItem: TMenuItem
        Caption = '&Save'
        ShortCut = 16467
        OnClick = SaveClick
      end
      object SaveAsItem: TMenuItem
        Caption = 'Save &as...'
        ShortCut = 24659
        OnClick = SaveAsClick
      end
      object Separator1: TMenuItem
        Caption = '-'
      end
      object PdfItem: TMenuItem
        Caption = 'Export as P&DF...'
        OnClick = ExportPdfClick
      end
      object SvgItem: TMenuItem
        Caption = 'Export as S&VG...'
        OnClick = ExportSvgClick
      end
      object PngItem: TMenuItem
        Caption = 'Export as P&NG...'
        OnClick = ExportPngClick
      end
      object PrintItem: TMenuItem
        Caption = '&Print...'
        ShortCut = 16464
        OnClick = PrintClick
      end
      object Separator2: TMenuItem
        Caption = '-'
      end
      object ExitItem: TMenuItem
        Caption = 'E&xit'
        ShortCut = 16465
        OnClick = ExitClick
      end
    end
    object EditMenu: TMenuItem
      Caption = '&Edit'
      object AddChildItem: TMenuItem
        Caption = 'Add box &below'
        ShortCut = 16450
        OnClick = AddChildClick
      end
      object AddSiblingItem: TMenuItem
        Caption = 'Add box be&side'
        ShortCut = 24642
        OnClick = AddSiblingClick
      end
      object RenameItem: TMenuItem
        Caption = '&Rename'
        ShortCut = 113
        OnClick = RenameClick
      end
      object DeleteItem: TMenuItem
        Caption = '&Delete'
        OnClick = DeleteClick
      end
    end
    object ViewMenu: TMenuItem
      Caption = '&View'
      object ExpandItem: TMenuItem
        Caption = '&Expand all'
        ShortCut = 16453
        OnClick = ExpandAllClick
      end
      object CollapseItem: TMenuItem
        Caption = '&Collapse all'
        ShortCut = 24645
        OnClick = CollapseAllClick
      end
    end
  end
  object OpenDialog: TOpenDialog
    DefaultExt = 'txt'
    Filter = 'Charts (*.txt)|*.txt;*.tree|All files|*'
    Options = [ofHideReadOnly, ofPathMustExist, ofFileMustExist, ofEnableSizing]
    Title = 'Open a chart'
    Left = 48
    Top = 60
  end
  object SaveDialog: TSaveDialog
    DefaultExt = 'txt'
    Filter = 'Charts (*.txt)|*.txt;*.tree|All files|*'
    Options = [ofOverwritePrompt, ofHideReadOnly, ofPathMustExist, ofEnableSizing]
    Title = 'Save the chart'
    Left = 80
    Top = 60
  end
  object ExportDialog: TSaveDialog
    Options = [ofOverwritePrompt, ofHideReadOnly, ofPathMustExist, ofEnableSizing]
    Title = 'Export the chart'
    Left = 112
    Top = 60
  end
end
