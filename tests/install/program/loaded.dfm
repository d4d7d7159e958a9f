object Form: TForm
  Left = 0
  Top = 0
  Width = 640
  Height = 480
  Caption = 'A form of somebody else'
  object View: TKSTimeView
    Left = 8
    Top = 8
    Width = 600
    Height = 400
    DaysCount = 7
  end
end
