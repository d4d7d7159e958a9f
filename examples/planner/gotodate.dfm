object GoToDateForm: TForm
  Left = 200
  Top = 160
  BorderStyle = bsDialog
  Caption = 'Go to date'
  ClientHeight = 96
  ClientWidth = 300
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = 'Liberation Sans'
  Font.Style = []
  OldCreateOrder = False
  Position = poOwnerFormCenter
  PixelsPerInch = 96
  TextHeight = 14
  object DateLabel: TLabel
    Left = 12
    Top = 18
    Width = 130
    Height = 16
    Caption = '&Date (year-month-day):'
    FocusControl = DateEdit
  end
  object DateEdit: TEdit
    Left = 160
    Top = 13
    Width = 128
    Height = 26
    TabOrder = 0
  end
  object OkButton: TButton
    Left = 116
    Top = 56
    Width = 82
    Height = 28
    Caption = 'OK'
    Default = True
    ModalResult = 1
    TabOrder = 1
  end
  object CancelButton: TButton
    Left = 206
    Top = 56
    Width = 82
    Height = 28
    Cancel = True
    Caption = 'Cancel'
    ModalResult = 2
    TabOrder = 2
  end
end
