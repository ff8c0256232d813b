' VosXLRep7 as a VBScript client sees it, on the engine's automation object: the classes it hands
' out, optional arguments left out taking their defaults, the classes it does not let clients create,
' and its refusals as Err.Number and Err.Description, with the library's codes and texts and Excel's
' passing through. Prints one line per failed check and "ALL CHECKS PASSED" when none failed.
Option Explicit

Dim failures
failures = 0

Sub Check(condition, what)
    If Not condition Then
        WScript.Echo "FAILED: " & what
        failures = failures + 1
    End If
End Sub

Sub CheckEqual(actual, expected, what)
    Check actual = expected, what & ": expected [" & expected & "], got [" & actual & "]"
End Sub

' The error the statement before left: its number and text must be those given.
Sub Refused(number, text, what)
    CheckEqual Hex(Err.Number) & " " & Err.Description, Hex(number) & " " & text, what
    Err.Clear
End Sub

Const VosChartColumn = 16
Const VosChartXYMarkers = 32
Const VosTopHeader = 0
Const VosLeftHeader = 1

Dim reporting, xl, otherXl, report, sheet, table, chart, made, info
Set reporting = CreateObject("VosXLRep7.VosExcelReporting")
Set xl = CreateObject("VosExcelEngine.Application")
reporting.UnitTestingMode = True
Check reporting.UnitTestingMode, "UnitTestingMode reads back"

' The classes the factory members hand out; optional arguments left out take their defaults.
Set report = reporting.NewReportWorkbook(xl, "  ClientTest  ")
CheckEqual TypeName(report), "_VosExcelReportWorkbook", "NewReportWorkbook's class"
CheckEqual report.applicationIdentifier, "ClientTest", "the identifier, trimmed"
CheckEqual report.DefaultLanguage, 9, "DefaultLanguage left out"
Check Not report.UseThemes, "UseThemes off at first"
Check reporting.WorkbookHasCreationTag(report.ExcelWorkbook), "the workbook's tag, identifier left out"
Set sheet = report.NewReportWorksheet("Results")
CheckEqual TypeName(sheet), "_VosExcelReportWorksheet", "NewReportWorksheet's class"
Check reporting.WorksheetHasCreationTag(sheet.ExcelWorksheet, "clienttest"), "the sheet's tag, any case"
CheckEqual sheet.CurrentCell.Address, "$A$1", "the cursor starts at A1"
Set table = sheet.AddTable(3, 2, 1, 1)
CheckEqual TypeName(table), "_VosExcelTable", "AddTable's class"
CheckEqual table.TableRange.Address, "$A$1:$C$4", "a table without titles"
table.WriteHeaderIndexNumbers 1
CheckEqual table.LeftHeaderRange.Cells(1, 1).Value, "#1", "WriteHeaderIndexNumbers with its defaults"
Dim widthBefore
widthBefore = table.TableRange.Columns(1).ColumnWidth
table.ConfigureColumn 1, "Width kept"
CheckEqual table.TopHeaderRange.Cells(1, 1).Value, "Width kept", "ConfigureColumn with its defaults"
CheckEqual table.TableRange.Columns(1).ColumnWidth, widthBefore, "ConfigureColumn's width left out"
sheet.AddSeparatorRows 1
Set chart = sheet.AddChart(VosChartColumn)
CheckEqual TypeName(chart), "_VosExcelChart", "AddChart's class"
CheckEqual chart.ChartType, VosChartColumn, "the chart's type"
CheckEqual chart.Chart.Parent.Width, 428, "AddChart's width left out"
Check chart.Chart.Parent.Height >= 300 And chart.Chart.Parent.Height < 315.5, _
      "AddChart's height left out, stretched to the next row boundary: " & chart.Chart.Parent.Height
Check Not sheet.HasAvailableSpace(1048577, 1), "HasAvailableSpace past the last row"

' The classes only the library makes.
On Error Resume Next
Set made = CreateObject("VosXLRep7.VosExcelReportWorkbook")
Refused 429, "ActiveX component can't create object", "CreateObject of a report workbook"
Set made = CreateObject("VosXLRep7.VosExcelTable")
Refused 429, "ActiveX component can't create object", "CreateObject of a table"

' The library's refusals, each with its code and text, in the order of the checks.
Set made = reporting.NewReportWorkbook(Nothing, "App")
Refused &H80040002, "xlApp", "NewReportWorkbook without xlApp"
Set made = reporting.NewReportWorkbook(xl, "   ")
Refused &H80040000, "applicationIdentifier", "NewReportWorkbook with a blank identifier"
Set otherXl = CreateObject("VosExcelEngine.Application")
Set made = reporting.NewReportWorkbook(otherXl, "App", report.ExcelWorkbook)
Refused &H80040001, "existingWB", "NewReportWorkbook with another application's workbook"
Set made = report.NewReportWorksheet("  ")
Refused &H80040000, "worksheetName", "NewReportWorksheet with a blank name"
Check reporting.WorkbookHasCreationTag(Nothing), "no workbook to test"
Refused &H80040002, "wb", "WorkbookHasCreationTag without a workbook"
sheet.AddSeparatorRows 0
Refused &H80040003, "numRows", "AddSeparatorRows 0"
Check sheet.HasAvailableSpace(1, 0), "a space test of no columns"
Refused &H80040003, "numColumns", "HasAvailableSpace with no columns"
Set sheet.CurrentCell = sheet.ExcelWorksheet.Range("A1:B2")
Refused &H80040001, "CurrentCell must be a single cell.", "a cursor of four cells"
info = Array("Model" & vbTab & "Cat")
Set made = sheet.AddHeader("  ", info)
Refused &H80040000, "mainTitle", "AddHeader with a blank title"
Set made = sheet.AddTable(0, 2, 1, 1)
Refused &H80040003, "numInteriorRows", "AddTable of no rows"
Set made = sheet.AddTable(2, 0, 1, 1)
Refused &H80040003, "numInteriorColumns", "AddTable of no columns"
Set made = sheet.AddTable(2, 2, 6, 1)
Refused &H80040003, "numHeaderRows", "AddTable of six header rows"
Set made = sheet.AddTable(2, 2, 1, 6)
Refused &H80040003, "numHeaderColumns", "AddTable of six header columns"
Set made = sheet.AddChart(17)
Refused &H80040003, "chartType", "AddChart of an unknown type"
Set made = sheet.AddChart(VosChartColumn, 0)
Refused &H80040003, "chartWidth", "AddChart of no width"
Set made = sheet.AddChart(VosChartColumn, 100, -1)
Refused &H80040003, "chartHeight", "AddChart of a negative height"
made = sheet.RecommendedTornadoChartHeight(-1)
Refused &H80040003, "numBars", "RecommendedTornadoChartHeight of -1 bars"
Set made = sheet.AddComment(sheet.ExcelWorksheet.Range("H1"), " ", "Text")
Refused &H80040000, "headerText", "AddComment without a header text"
table.WriteHeaderItem 7, 1, "x"
Refused &H80040003, "whichHeader", "WriteHeaderItem with an unknown header"
Set made = chart.AddTitle("Before any data")
Refused &H8004000B, "Operation can not be performed until the chart has at least one data series.", _
        "AddTitle on a chart without series"
Set made = chart.AddColumnData(Nothing)
Refused &H80040002, "sourceDataRange", "AddColumnData without a range"
Set made = chart.AddXYData(table.InteriorRange.Columns(1), table.InteriorRange.Columns(2))
Refused &H8004000B, "Invalid type of data for chart's type.", "XY data on a column chart"
Set made = chart.AddColumnData(table.InteriorRange.Columns(1), "First")
Check Err.Number = 0, "AddColumnData of a column: " & Err.Description
Set made = chart.AddValueXAxis("x")
Refused &H8004000B, "This type of axis can not be added to this chart type.", "a value X axis on columns"
Set made = chart.AddValueYAxis("y", 10, 5, 1)
Refused &H80040001, "axisMaximum must be greater than axisMinimum.", "an axis whose maximum is below its minimum"
Set made = chart.AddValueYAxis("y", 0, 10)
Refused &H80040001, "axisMinimum, axisMaximum, and axisUnit must either all be specified or all be automatic.", _
        "an axis with its unit left automatic"
Set made = chart.AddValueYAxis("y")
Check Err.Number = 0, "AddValueYAxis with its scale left out: " & Err.Description
Check made.MinimumScaleIsAuto And made.MaximumScaleIsAuto And made.MajorUnitIsAuto, _
      "AddValueYAxis's scale left out is automatic"
Set made = chart.AddSubTitle("No title yet")
Refused &H8004000B, "The chart must have a ChartTitle to call this method.", "a subtitle without a title"
Dim topOnly, xy
Set topOnly = sheet.AddTable(3, 2, 1, 0, "Top header only")
topOnly.WriteHeaderItem 1, 1, "x"
Refused &H80040001, "Table does not have a left header.", "a left-header item on a table without one"
Set made = topOnly.AddComment(1, 0, "Header", "Main")
Refused &H8004000B, "This table has no left-header range.", "a left-header comment on a table without one"
table.WriteHeaderPairedItem VosTopHeader, 1, "a", "b"
Refused &H8004000B, "The header is not wide enough to display a paired item.", "a paired item in one header row"
table.WriteHeaderMergedItem 1, 1, "x"
Refused &H80040001, "This method can not be used for this combintation of table format and header.", _
        "a merged item in the left header"
table.WriteHeaderItem VosTopHeader, 3, "x"
Refused &H80040003, "position", "a header item past the last column"
table.WriteHeaderArray VosTopHeader, 1, Array()
Refused &H80040001, "No values to write.", "an empty header array"
table.WriteHeaderArray VosTopHeader, 2, Array("a", "b")
Refused &H8004000B, "Not enough room in header to display values.", "a header array past the header's end"
table.WriteHeaderIndexNumbers VosTopHeader, 1, 3
Refused &H80040003, "numIndices", "more index numbers than header cells"
table.WriteDataToColumn 3, Array(1)
Refused &H80040003, "columnPosition", "data for a column past the last"
table.WriteDataToColumn 1, 5
Refused &H80040001, "dataArray must be an array.", "data that is no array"
table.WriteDataToColumn 1, Array(1, 2, 3, 4)
Refused &H8004000B, "Not enough rows to write dataArray.", "more data than rows"
table.WriteDataToColumn 1, Array(1), 4
Refused &H80040003, "startingRowPosition", "data from past the last row"
Set made = table.AddComment(4, 1, "Header", "Main")
Refused &H80040003, "interiorRowPosition", "a table comment past the last row"
Set made = table.AddComment(1, 1, "Header", "  ")
Refused &H80040000, "mainText", "a table comment without a main text"
table.AddRowDividerLine 4, True
Refused &H80040003, "position", "a row divider past the last row"
table.AddCustomDivider Nothing
Refused &H80040002, "borderObject", "a custom divider without a border"
table.ConfigureColumn 3
Refused &H80040003, "position", "configuring a column past the last"
Set made = chart.AddColumnData(table.InteriorRange)
Refused &H80040001, "sourceDataRange must be a single Excel row or column.", "column data of two columns"
made = chart.DefaultSeriesColor(0)
Refused &H80040003, "formattingIndex", "the colour of series 0"
Set made = chart.AddTitle("  ")
Refused &H80040000, "titleText", "a blank chart title"
chart.AddWatermark " "
Refused &H80040000, "primaryText", "a blank watermark"
Set made = chart.AddValueYAxis("y", 0, 10, -1)
Refused &H80040003, "axisUnit", "an axis of a negative unit"
Set xy = sheet.AddChart(VosChartXYMarkers)
Set made = xy.AddXYData(table.InteriorRange.Columns(1), table.InteriorRange.Rows(1))
Refused &H80040001, "The x and y data ranges must be the same size.", "x and y ranges of different shapes"

Check reporting.WorksheetHasCreationTag(Nothing), "no worksheet to test"
Refused &H80040002, "ws", "WorksheetHasCreationTag without a worksheet"
Set made = xy.AddXYData(Nothing, table.InteriorRange.Columns(2))
Refused &H80040002, "xDataRange", "XY data without x values"
Set made = xy.AddXYData(table.InteriorRange.Columns(1), Nothing)
Refused &H80040002, "yDataRange", "XY data without y values"
Dim twoAreas
Set twoAreas = xl.Union(table.InteriorRange.Cells(1, 1), table.InteriorRange.Cells(3, 1))
Set made = chart.AddColumnData(twoAreas)
Refused &H80040001, "sourceDataRange can not have multiple areas.", "column data of two areas"
Set made = xy.AddXYData(twoAreas, table.InteriorRange.Columns(2))
Refused &H80040001, "xDataRange must have a single area.", "x values of two areas"
Set made = xy.AddXYData(table.InteriorRange, table.InteriorRange.Columns(2))
Refused &H80040001, "xDataRange must be a single Excel row or column.", "x values of two columns"
Set made = table.AddComment(1, 3, "Header", "Main")
Refused &H80040003, "interiorColumnPosition", "a table comment past the last column"
Set made = sheet.AddComment(Nothing, "Header", "Main")
Refused &H80040002, "whichCell", "a comment without a cell"
Dim square(1, 1)
table.WriteDataToColumn 1, square
Refused &H80040001, "dataArray must be a 1-dimensional array.", "data of two dimensions"
table.WriteHeaderSummary VosLeftHeader, "Total"
Refused &H80040001, "This method can not be used for this combintation of table format and header.", _
        "a summary in the left header"
Set made = report.NewReportWorksheet("Other")
Set sheet.CurrentCell = made.ExcelWorksheet.Range("A1")
Refused &H80040001, "CurrentCell must be on the report worksheet.", "a cursor on another sheet"
Set sheet.CurrentCell = sheet.ExcelWorksheet.Cells(1048576, 1)
Set made = sheet.AddTable(3, 2, 1, 1)
Refused &H8004000B, "Requested report element can not fit in available space.", "a table below the last row"

' Excel's own refusals pass through unchanged.
sheet.ExcelWorksheet.Name = "bad/name"
Refused 1004, "You typed an invalid name for a sheet or chart.", "Excel's refusal of a sheet name"
On Error GoTo 0

If failures = 0 Then
    WScript.Echo "ALL CHECKS PASSED"
End If
WScript.Quit failures
