object PlannerForm: TPlannerForm
  Left = 80
  Top = 60
  Width = 1100
  Height = 760
  Caption = 'Planner'
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
      Hint = 'Open calendars (Ctrl+O)'
      Caption = 'Open...'
      Flat = True
      OnClick = OpenClick
    end
    object TodayButton: TSpeedButton
      Left = 76
      Top = 4
      Width = 54
      Height = 28
      Hint = 'Go to today (Ctrl+T)'
      Caption = 'Today'
      Flat = True
      OnClick = TodayClick
    end
    object PreviousButton: TSpeedButton
      Left = 132
      Top = 4
      Width = 28
      Height = 28
      Hint = 'Earlier (Alt+Left)'
      Caption = #8249
      Flat = True
      OnClick = PreviousClick
    end
    object NextButton: TSpeedButton
      Left = 162
      Top = 4
      Width = 28
      Height = 28
      Hint = 'Later (Alt+Right)'
      Caption = #8250
      Flat = True
      OnClick = NextClick
    end
    object GoToButton: TSpeedButton
      Left = 192
      Top = 4
      Width = 62
      Height = 28
      Hint = 'Go to a date (Ctrl+G)'
      Caption = 'Go to...'
      Flat = True
      OnClick = GoToDateClick
    end
    object Days1Button: TSpeedButton
      Tag = 1
      Left = 266
      Top = 4
      Width = 40
      Height = 28
      Hint = 'One day (Ctrl+1)'
      GroupIndex = 1
      Caption = 'Day'
      Flat = True
      OnClick = DaysClick
    end
    object Days5Button: TSpeedButton
      Tag = 5
      Left = 308
      Top = 4
      Width = 78
      Height = 28
      Hint = 'Monday to Friday (Ctrl+2)'
      GroupIndex = 1
      Caption = 'Work week'
      Flat = True
      OnClick = DaysClick
    end
    object Days7Button: TSpeedButton
      Tag = 7
      Left = 388
      Top = 4
      Width = 48
      Height = 28
      Hint = 'Seven days (Ctrl+3)'
      GroupIndex = 1
      Down = True
      Caption = 'Week'
      Flat = True
      OnClick = DaysClick
    end
    object Days14Button: TSpeedButton
      Tag = 14
      Left = 438
      Top = 4
      Width = 62
      Height = 28
      Hint = 'Fourteen days (Ctrl+4)'
      GroupIndex = 1
      Caption = '2 weeks'
      Flat = True
      OnClick = DaysClick
    end
    object Days31Button: TSpeedButton
      Tag = 31
      Left = 502
      Top = 4
      Width = 52
      Height = 28
      Hint = 'A month (Ctrl+5)'
      GroupIndex = 1
      Caption = 'Month'
      Flat = True
      OnClick = DaysClick
    end
    object ZoomOutButton: TSpeedButton
      Left = 566
      Top = 4
      Width = 28
      Height = 28
      Hint = 'Coarser time scale (Ctrl+-)'
      Caption = #8722
      Flat = True
      OnClick = ZoomOutClick
    end
    object ZoomInButton: TSpeedButton
      Left = 596
      Top = 4
      Width = 28
      Height = 28
      Hint = 'Finer time scale (Ctrl++)'
      Caption = '+'
      Flat = True
      OnClick = ZoomInClick
    end
    object WorkButton: TSpeedButton
      Left = 626
      Top = 4
      Width = 100
      Height = 28
      Hint = 'Show working hours (Ctrl+W)'
      AllowAllUp = True
      GroupIndex = 2
      Down = True
      Caption = 'Working hours'
      Flat = True
      OnClick = WorkingHoursClick
    end
    object RangeLabel: TLabel
      Left = 738
      Top = 10
      Width = 354
      Height = 16
      AutoSize = False
      Anchors = [akLeft, akTop, akRight]
      Font.Height = -13
      Font.Name = 'Liberation Sans'
      Font.Style = [fsBold]
      ParentFont = False
    end
  end
  object TimeView: TKSTimeView
    Left = 0
    Top = 36
    Width = 1100
    Height = 680
    RulerFont.Charset = DEFAULT_CHARSET
    RulerFont.Color = clWindowText
    RulerFont.Height = -12
    RulerFont.Name = 'Liberation Sans'
    RulerFont.Style = []
    Align = alClient
    DaysGapColor = clBtnFace
    DaysGapCoverColor = 13400908
    ItemSelectionColor = clHighlight
    TopSpaceColor = clBtnFace
    LongCaptionFormat = 'dddd d mmmm'
    MediumCaptionFormat = 'ddd d mmm'
    ShortCaptionFormat = 'd'
    TabOrder = 1
    TabStop = True
    OnItemClick = ItemClick
    OnItemDblClick = ItemDblClick
    OnClick = ViewClick
  end
  object StatusBar: TStatusBar
    Left = 0
    Top = 716
    Width = 1100
    Height = 24
    Panels = <
      item
        Width = 760
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
      object AddItem: TMenuItem
        Caption = '&Add calendar...'
        ShortCut = 24655
        OnClick = AddClick
      end
      object ReloadItem: TMenuItem
        Caption = '&Reload'
        ShortCut = 116
        OnClick = ReloadClick
      end
      object Separator1: TMenuItem
        Caption = '-'
      end
      object ExitItem: TMenuItem
        Caption = 'E&xit'
        ShortCut = 16465
        OnClick = ExitClick
      end
    end
    object GoMenu: TMenuItem
      Caption = '&Go'
      object TodayItem: TMenuItem
        Caption = '&Today'
        ShortCut = 16468
        OnClick = TodayClick
      end
      object PreviousItem: TMenuItem
        Caption = '&Earlier'
        ShortCut = 32805
        OnClick = PreviousClick
      end
      object NextItem: TMenuItem
        Caption = '&Later'
        ShortCut = 32807
        OnClick = NextClick
      end
      object GoToItem: TMenuItem
        Caption = '&Go to date...'
        ShortCut = 16455
        OnClick = GoToDateClick
      end
    end
    object ViewMenu: TMenuItem
      Caption = '&View'
      object Days1Item: TMenuItem
        Tag = 1
        Caption = 'One &day'
        RadioItem = True
        GroupIndex = 1
        ShortCut = 16433
        OnClick = DaysClick
      end
      object Days5Item: TMenuItem
        Tag = 5
        Caption = '&Work week'
        RadioItem = True
        GroupIndex = 1
        ShortCut = 16434
        OnClick = DaysClick
      end
      object Days7Item: TMenuItem
        Tag = 7
        Caption = '&Week'
        RadioItem = True
        GroupIndex = 1
        Checked = True
        ShortCut = 16435
        OnClick = DaysClick
      end
      object Days14Item: TMenuItem
        Tag = 14
        Caption = '&Two weeks'
        RadioItem = True
        GroupIndex = 1
        ShortCut = 16436
        OnClick = DaysClick
      end
      object Days31Item: TMenuItem
        Tag = 31
        Caption = '&Month'
        RadioItem = True
        GroupIndex = 1
        ShortCut = 16437
        OnClick = DaysClick
      end
      object Separator2: TMenuItem
        Caption = '-'
      end
      object ZoomInItem: TMenuItem
        Caption = '&Finer time scale'
        ShortCut = 16571
        OnClick = ZoomInClick
      end
      object ZoomOutItem: TMenuItem
        Caption = '&Coarser time scale'
        ShortCut = 16573
        OnClick = ZoomOutClick
      end
      object Separator3: TMenuItem
        Caption = '-'
      end
      object WorkItem: TMenuItem
        Caption = 'Working &hours'
        Checked = True
        ShortCut = 16471
        OnClick = WorkingHoursClick
      end
      object SetWorkItem: TMenuItem
        Caption = '&Set working hours...'
        OnClick = SetWorkingHoursClick
      end
    end
  end
  object OpenDialog: TOpenDialog
    DefaultExt = 'ics'
    Filter = 'Calendars (*.ics)|*.ics;*.ical;*.ifb|All files|*'
    Options = [ofHideReadOnly, ofAllowMultiSelect, ofPathMustExist, ofFileMustExist, ofEnableSizing]
    Title = 'Open calendars'
    Left = 48
    Top = 60
  end
end
