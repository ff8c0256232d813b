' A report built by a VBScript client on the engine's automation object, with the calls a report
' makes of Excel: a header, a formatted table, a comment and a column chart. report_calls_writer
' makes the same calls in-process; the two workbooks must be the same part by part.
'
' Usage: cscript //nologo report_client.vbs OUTPUT.xlsx
Option Explicit

Const xlCenter = -4108
Const xlRight = -4152
Const xlEdgeBottom = 9
Const xlContinuous = 1
Const xlThin = 2
Const xlMedium = -4138
Const xlColumnClustered = 51
Const xlValue = 2
Const xlCategory = 1

Dim xl, wb, ws, header, data, regions, premium, lossRatio, row, shape, chart, series
Set xl = CreateObject("VosExcelEngine.Application")
xl.SheetsInNewWorkbook = 1
xl.DisplayAlerts = False
Set wb = xl.Workbooks.Add
Set ws = wb.Worksheets(1)
ws.Name = "Risk report"

' The header block: a merged, centred title and two label-value lines.
ws.Range("A1").Value = "Risk report"
ws.Range("A1").Font.Bold = True
ws.Range("A1").Font.Size = 14
ws.Range("A1:D1").Merge
ws.Range("A1:D1").HorizontalAlignment = xlCenter
ws.Range("A2:B3").Value = Array2D(Array("Model", "Catastrophe 7.2"), Array("Runs", 10000))
ws.Range("A2:A3").Font.Italic = True

' The table: a header row, a block of data written at once, number formats and borders.
header = Array("Region", "Premium", "Loss ratio")
ws.Range("A5:C5").Value = header
ws.Range("A5:C5").Font.Bold = True
ws.Range("A5:C5").Interior.Color = RGB(221, 235, 247)
ws.Range("A5:C5").Borders(xlEdgeBottom).LineStyle = xlContinuous
ws.Range("A5:C5").Borders(xlEdgeBottom).Weight = xlMedium
regions = Array("North", "South", "East", "West")
premium = Array(1250000, 830000, 410000, 96500.5)
lossRatio = Array(0.61, 0.74, 0.58, 0.92)
ReDim data(3, 2)
For row = 0 To 3
    data(row, 0) = regions(row)
    data(row, 1) = premium(row)
    data(row, 2) = lossRatio(row)
Next
ws.Range("A6:C9").Value = data
ws.Range("B6:B9").NumberFormat = "#,##0.00"
ws.Range("C6:C9").NumberFormat = "0.0%"
ws.Range("B5:C9").HorizontalAlignment = xlRight
ws.Range("A5:C9").BorderAround xlContinuous, xlThin
ws.Columns(1).ColumnWidth = 14
ws.Columns(2).ColumnWidth = 16
ws.Range("C9").AddComment "Above appetite."

' The chart: premium by region, with a title and a value-axis title.
Set shape = ws.Shapes.AddChart(xlColumnClustered, ws.Range("E5").Left, ws.Range("E5").Top, 360, 220)
Set chart = shape.Chart
Set series = chart.SeriesCollection.NewSeries
series.Name = "Premium"
series.Values = ws.Range("B6:B9")
series.XValues = ws.Range("A6:A9")
chart.HasTitle = True
chart.ChartTitle.Text = "Premium by region"
chart.Axes(xlValue).HasTitle = True
chart.Axes(xlValue).AxisTitle.Text = "USD"
chart.Axes(xlCategory).TickLabels.Font.Size = 9

ws.Range("A1").Select
wb.SaveAs WScript.Arguments(0)
wb.Close False
WScript.Echo "ALL CHECKS PASSED"

' A two-dimensional array of the rows given, for a block's value.
Function Array2D(first, second)
    Dim result(1, 1), column
    For column = 0 To 1
        result(0, column) = first(column)
        result(1, column) = second(column)
    Next
    Array2D = result
End Function
