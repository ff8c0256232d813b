#pragma once

#include <memory>

namespace excel {

class Application;
class Workbooks;
class Workbook;
class Sheets;
using Worksheets = Sheets;  // Workbook.Worksheets and Workbook.Sheets answer the same collection
class Worksheet;
class Windows;
class Window;
class PageSetup;
class Range;
class Areas;
class Font;
class Interior;
class Borders;
class Border;
class Characters;
class Names;
class Name;
class Shapes;
class Shape;
class TextFrame;
class TextFrame2;
class FillFormat;
class LineFormat;
class ColorFormat;
class Comment;
class ChartObjects;
class ChartObject;
class Chart;
class ChartArea;
class PlotArea;
class ChartGroups;
class ChartGroup;
class SeriesCollection;
class Series;
class ChartFillFormat;
class Axes;
class Axis;
class AxisTitle;
class TickLabels;
class ChartTitle;
class Legend;

}  // namespace excel
