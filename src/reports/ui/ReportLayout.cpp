#include "reports/ui/ReportLayout.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <string>

#include "forms/Look.h"
#include "forms/Utf8.h"
#include "forms/Window.h"

namespace sorvane {

namespace {

QLayout* Place(const std::vector<QWidget*>& views) {
    auto* place = new QGridLayout;
    for (QWidget* view : views) {
        QSizePolicy policy = view->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        view->setSizePolicy(policy);
        place->addWidget(view, 0, 0);
    }
    return place;
}

void AddGroup(QVBoxLayout& column, const ReportButtons& group) {
    auto* heading = new QLabel(forms::ToQt(group.heading));
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    column.addWidget(heading);
    for (forms::CommandButton* button : group.buttons) {
        std::string spoken = button->Caption();
        std::erase(spoken, '&');
        button->SetAccessibleName(spoken.append(" ").append(group.kind));
        column.addWidget(button);
    }
    column.addSpacing(forms::Look::Gap(*heading));
}

}  // namespace

void LayOutReports(QWidget& page, const std::vector<QWidget*>& views,
                   const std::vector<ReportButtons>& column, forms::CommandButton& exit) {
    const int gap = forms::Look::Gap(page);
    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(forms::Look::Space(page));
    std::vector<QWidget*> order;
    for (const ReportButtons& group : column) {
        AddGroup(*buttons, group);
        order.insert(order.end(), group.buttons.begin(), group.buttons.end());
    }
    buttons->addStretch();
    buttons->addWidget(&exit);
    order.push_back(views.back());
    order.push_back(&exit);

    auto* whole = new QHBoxLayout(&page);
    whole->setContentsMargins(gap, gap, gap, gap);
    whole->setSpacing(gap);
    whole->addLayout(Place(views), 1);
    whole->addLayout(buttons);
    forms::SetTabOrder(order);
}

}  // namespace sorvane
