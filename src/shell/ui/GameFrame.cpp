#include "shell/ui/GameFrame.h"

#include "shell/ui/Windows.h"

namespace sorvane {

GameFrame::GameFrame(Family family, Session& session_, Windows& windows_)
    : Window(NameOf(family)), Which(family), session(session_), windows(windows_) {}

void GameFrame::Leave() { windows.Unload(*this); }

Answer GameFrame::MsgBox(std::string_view text, int style, std::string_view title) {
    return session.services.dialogs.MsgBox(text, style, title);
}

void GameFrame::TakeArraysOut() {
    const auto take = [](auto& element, int) { element.setParent(nullptr); };
    txtNoOfTickets.ForEach(take);
    dtpEnterTickets.ForEach(take);
    cmdExit.ForEach(take);
}

}  // namespace sorvane
