' The engine's automation object as a VBScript client sees it: objects by their type names, default
' members, omitted arguments, identity, arrays, and refusals as Err.Number and Err.Description.
' Prints one line per failed check and "ALL CHECKS PASSED" when none failed; run by run_vbscript.
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

' Err as the statement that ran last left it: "number|description".
Function LastError()
    LastError = Err.Number & "|" & Err.Description
    Err.Clear
End Function

Dim xl, wb, ws, block, values, read, row, column
Set xl = CreateObject("VosExcelEngine.Application")
Set wb = xl.Workbooks.Add
Set ws = wb.Worksheets(1)

' Objects answer TypeName with their interface's name.
CheckEqual TypeName(xl), "Application", "TypeName of the application"
CheckEqual TypeName(wb), "Workbook", "TypeName of a workbook"
CheckEqual TypeName(ws), "Worksheet", "TypeName of a worksheet"
CheckEqual TypeName(ws.Range("A1")), "Range", "TypeName of a range"
CheckEqual TypeName(ws.Range("A1").Font), "Font", "TypeName of a font"

' Arguments a member does not take go to the default member of what it answers.
CheckEqual ws.Cells(2, 3).Address, "$C$2", "Cells(2, 3)"
CheckEqual ws.Rows(4).Address, "$4:$4", "Rows(4)"
CheckEqual ws.Range("B2:D4").Cells(2, 2).Address, "$C$3", "Range.Cells(2, 2)"
Set block = ws.Range("B2:D4")
CheckEqual block(1, 2).Address, "$C$2", "a range's default member with arguments (Item)"
CheckEqual wb.Worksheets(1).Name, "Sheet1", "Worksheets(1)"
CheckEqual xl.Workbooks(1).Name, wb.Name, "Workbooks(1)"

' A value put on a member with arguments goes to the default member of the object they pick.
ws.Cells(3, 1) = 7
CheckEqual ws.Range("A3").Value, 7, "Cells(3, 1) = 7"
block(3, 3) = "corner"
CheckEqual ws.Range("D4").Value, "corner", "a range's default member put with arguments"

' A range's default member without arguments is its value.
ws.Range("A1").Value = "Hello"
CheckEqual ws.Range("A1"), "Hello", "a range's default member without arguments (Value)"

' Optional arguments left out take their defaults.
CheckEqual ws.Range("A1").Resize(, 3).Address, "$A$1:$C$1", "Resize with the row count left out"
CheckEqual ws.Range("A1").Resize(2).Address, "$A$1:$A$2", "Resize with the column count left out"
CheckEqual ws.Range("A1").Address(False), "$A1", "Address with all but the first left out (a relative row)"

' One object has one identity; two ranges are two views.
Check ws Is wb.Worksheets(1), "a worksheet reached twice is the same object"
Check wb Is ws.Parent, "a worksheet's parent is its workbook"
Check Not (ws.Range("A1") Is ws.Range("A1")), "ranges are distinct views"

' A two-dimensional array of VBScript (0-based) fills a block, and a block reads back 1-based.
ReDim values(1, 2)
For row = 0 To 1
    For column = 0 To 2
        values(row, column) = (row + 1) * 10 + column + 1
    Next
Next
ws.Range("E1:G2").Value = values
read = ws.Range("E1:G2").Value
CheckEqual LBound(read, 1) & "," & UBound(read, 1) & "," & LBound(read, 2) & "," & UBound(read, 2), "1,2,1,3", _
           "the bounds of a block's value"
CheckEqual read(2, 3), 23, "the last element of a block's value"
CheckEqual ws.Range("G2").Value, 23, "the cell the array's last element filled"

' Properties set through automation are the engine's.
ws.Range("B2").Font.Bold = True
Check ws.Range("B2").Font.Bold, "Font.Bold set and read back"
ws.Range("B2").NumberFormat = "0.00%"
CheckEqual ws.Range("B2").NumberFormat, "0.00%", "NumberFormat set and read back"

'' A workbook keeps its application alive after the client lets the application go, as Excel does.
Dim kept
Set kept = CreateObject("VosExcelEngine.Application").Workbooks.Add
kept.Worksheets(1).Range("A1").Value = 5
CheckEqual kept.Worksheets(1).Range("A1").Value, 5, "a workbook whose application the client let go"

' Refusals arrive with Excel's codes and texts.
On Error Resume Next
ws.Name = "bad/name"
CheckEqual LastError(), "1004|You typed an invalid name for a sheet or chart.", "an invalid sheet name"
CheckEqual ws.Name, "Sheet1", "the sheet keeps its name after the refusal"
Set read = xl.Workbooks(5)
CheckEqual LastError(), "9|Subscript out of range", "a workbook past the last"
read = ws.NoSuchMember
CheckEqual LastError(), "438|Object doesn't support this property or method", "a member the object lacks"
ws.Range("A1").ColumnWidth = "wide"
CheckEqual LastError(), "13|Type mismatch", "a text where a number is due"
ws.Range("A1").Text = "x"
CheckEqual LastError(), "438|Object doesn't support this property or method", "a put on a read-only property"
read = ws.Range("A1").Resize(1, 2, 3)
CheckEqual LastError(), "450|Wrong number of arguments or invalid property assignment", "too many arguments"
ws.Range("A1").AddComment "first"
ws.Range("A1").AddComment "second"
CheckEqual Split(LastError(), "|")(0), "1004", "a second comment on one cell"
On Error GoTo 0

If failures = 0 Then
    WScript.Echo "ALL CHECKS PASSED"
End If
WScript.Quit failures
