// The form by which a player asks, on paper, for a lottery that the program lacks. Nothing is stored.
#pragma once

#include <QWidget>
#include <string_view>

#include "forms/CommandButton.h"
#include "forms/Label.h"
#include "forms/LabelFrame.h"
#include "forms/MultiLineBox.h"
#include "forms/OptionButton.h"
#include "forms/TextBox.h"
#include "forms/Window.h"
#include "shell/Global.h"
#include "shell/RequestForm.h"

class QLayout;

namespace sorvane {

class frmRequestNewLottery final : public forms::Window {
  public:
    explicit frmRequestNewLottery(Session& session);

  private:
    void LayOut();
    QLayout* LotteryGrid();
    QLayout* QuestionsRow();
    QLayout* MoneyGrid();
    QLayout* ButtonsRow();
    void OrderTabs();
    void AttachHandlers();
    void FilterKeys(forms::TextBox& field, bool (*accepts)(int key), std::string_view refusal);
    void cmdClear_Click();
    void cmdPrint_Click();
    RequestForm Filled() const;

    Session& session_;
    QWidget form_;  // the container, before its contents
    forms::Label lblText1{"lblText1",
                          "To request a new lottery, please complete the information requested below, print "
                          "it out, and mail it to the"};
    forms::Label lblText2{"lblText2", "address on the form. "};
    forms::Label lblNameOfLottery{"lblNameOfLottery", "Name of Lottery:"};
    forms::TextBox txtNameOfLottery{"txtNameOfLottery"};
    forms::Label lblCountry{"lblCountry", "Country:"};
    forms::TextBox txtCountry{"txtCountry"};
    forms::Label lblProvinceState{"lblProvinceState", "Province/State:"};
    forms::TextBox txtProvinceState{"txtProvinceState"};
    forms::Label lblNumberOfNumbers{"lblNumberOfNumbers", "Number of #'s / ticket:"};
    forms::TextBox txtNumberOfNumbers{"txtNumberOfNumbers"};
    forms::Label lblRange{"lblRange", "Range of Numbers:"};
    forms::Label lblLow{"lblLow", "Low:"};
    forms::TextBox txtLow{"txtLow"};
    forms::Label lblHigh{"lblHigh", "High:"};
    forms::TextBox txtHigh{"txtHigh"};
    forms::LabelFrame fraBonusNumber{"fraBonusNumber", "Bonus number drawn for 2nd prize?"};
    forms::OptionButton optYesBonusNumber{"optYesBonusNumber", "Yes"};
    forms::OptionButton optNoBonusNumber{"optNoBonusNumber", "No"};
    forms::LabelFrame fraBonusTicket{"fraBonusTicket", "Any Bonus tickets/Regular played ticket?"};
    forms::OptionButton optYesBonusTicket{"optYesBonusTicket", "Yes"};
    forms::OptionButton optNoBonusTicket{"optNoBonusTicket", "No"};
    forms::Label lblNumberOfBonusTickets{"lblNumberOfBonusTickets", "Number of Bonus tickets/played ticket:"};
    forms::TextBox txtNumberOfBonusTickets{"txtNumberOfBonusTickets"};
    forms::Label lblCostPerTicket{"lblCostPerTicket", "Cost/played ticket:"};
    forms::Label lblDollarSign{"lblDollarSign", "$"};
    forms::TextBox txtCostPerTicket{"txtCostPerTicket"};
    forms::Label lblAdditionalInfo{"lblAdditionalInfo", "Additional info:"};
    forms::MultiLineBox txtAdditionalInfo{"txtAdditionalInfo"};
    forms::CommandButton cmdClear{"cmdClear", "&Clear Form"};
    forms::CommandButton cmdPrint{"cmdPrint", "&Print"};
    forms::CommandButton cmdExit{"cmdExit", "E&xit"};
};

}  // namespace sorvane
