// How a bar chart is drawn: by Qt Charts, a large library that few starts of the program need.
#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

class QWidget;

namespace sorvane::forms {

// What is drawn. A row has a bar of each column.
struct Bars {
    struct Column {
        QString label;  // in the legend, blanks included
        QColor colour;
        std::vector<double> values;
    };
    QString title, barsCaption, valuesCaption;
    QString hint;  // written over the plot; empty: none
    QStringList rowLabels;
    std::vector<Column> columns;
    QFont font;
    QColor paper, ink, hintInk;
    std::function<QString(int column, int row)> told;  // what the bar under the mouse shows, from 0
};

// Draws on the whole widget, instead of what was drawn there before. There are two of it: the program's loads
// the library with the first chart (BarsLater.cpp), and says on the widget when it is missing; what the
// library holds, and what the tests have built in, is Bars.cpp.
void DrawBars(QWidget& on, const Bars& bars);

}  // namespace sorvane::forms
