object WorkingHoursForm: TForm
  Left = 200
  Top = 160
  BorderStyle = bsDialog
  Caption = 'Working hours'
  ClientHeight = 132
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
  object BeginLabel: TLabel
    Left = 12
    Top = 18
    Width = 130
    Height = 16
    Caption = '&Begin:'
    FocusControl = BeginCombo
  end
  object EndLabel: TLabel
    Left = 12
    Top = 52
    Width = 130
    Height = 16
    Caption = '&End:'
    FocusControl = EndCombo
  end
  object BeginCombo: TComboBox
    Left = 160
    Top = 13
    Width = 128
    Height = 26
    Style = csDropDownList
    TabOrder = 0
  end
  object EndCombo: TComboBox
    Left = 160
    Top = 47
    Width = 128
    Height = 26
    Style = csDropDownList
    TabOrder = 1
  end
  object OkButton: TButton
    Left = 116
    Top = 92
    Width = 82
    Height = 28
    Caption = 'OK'
    Default = True
    ModalResult = 1
    TabOrder = 2
  end
  object CancelButton: TButton
    Left = 206
    Top = 92
    Width = 82
    Height = 28
    Cancel = True
    Caption = 'Cancel'
    ModalResult = 2
    TabOrder = 3
  end
end
