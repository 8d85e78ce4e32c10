// How the windows with reports are laid out: what is looked at, and a column of buttons beside it.
#pragma once

#include <QWidget>
#include <string_view>
#include <vector>

#include "forms/CommandButton.h"

namespace sorvane {

// Buttons under a heading. Charts and reports have the same captions; a screen reader speaks the caption and
// `kind`.
struct ReportButtons {
    std::string_view heading, kind;
    std::vector<forms::CommandButton*> buttons;
};

// `views` take turns at one place, which keeps its size whichever of them is seen. The Tab key goes down the
// column of buttons, then to the last of the views and to `exit`.
void LayOutReports(QWidget& page, const std::vector<QWidget*>& views,
                   const std::vector<ReportButtons>& column, forms::CommandButton& exit);

}  // namespace sorvane
