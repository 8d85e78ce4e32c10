// Money spent and won over all lotteries.
#pragma once

#include <memory>
#include <string>

#include "forms/Chart.h"
#include "forms/CommandButton.h"
#include "forms/Window.h"
#include "reports/ui/ReportBox.h"
#include "shell/Global.h"

namespace sorvane {

// Takes every row of the ledgers, because Global::LottoFlag is empty: its opener empties it
// before. Opens on an empty chart.
class frmReport final : public forms::Window {
  public:
    explicit frmReport(Session& session);
    static std::unique_ptr<forms::Window> Make(Session& session) {
        return std::make_unique<frmReport>(session);
    }

  private:
    void Form_Load();
    void LayOut();
    void cmdProfitLoss_Click();
    void cmdPLReport_Click();

    Session& session_;
    std::string DbName_;
    std::string TableName_;
    Integer mode_;

    forms::CommandButton cmdProfitLoss{"cmdProfitLoss", "&Profit/Loss"};
    forms::CommandButton cmdPLReport{"cmdPLReport", "Profit/&Loss"};
    forms::CommandButton cmdExit{"cmdExit", "E&xit"};
    forms::Chart mscProfitLoss{"mscProfitLoss"};
    ReportBox txtReport{"txtReport"};
};

}  // namespace sorvane
