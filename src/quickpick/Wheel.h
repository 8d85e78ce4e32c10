// Wheeling: tickets out of a pool of numbers that the player typed, or that were drawn most or least often.
#pragma once

#include <string>

#include "platform/Lines.h"
#include "reports/ChartFace.h"
#include "shell/Global.h"
#include "shell/StoreTable.h"

namespace sorvane {

// The boxes of the Quick Pick tab that a wheel touches.
class WheelFace {
  public:
    virtual ~WheelFace() = default;
    // Text of txtFavs(i).
    virtual std::string Favourite(int i) const = 0;
    // Enables txtFavs(i) and shows the text in it.
    virtual void ShowFavourite(int i, const std::string& text) = 0;
    virtual void EmptyFavourites() = 0;
    // Puts the focus on txtFavs(i).
    virtual void AskForFavourite(int i) = 0;
    // Puts "0" and the focus into txtNoOfTickets(1).
    virtual void RefuseTicketCount() = 0;
};

// What a wheel gets of its window.
struct WheelWindow {
    WheelFace& face;
    Lines& lstDisplay;
    ChartFace& chart;
};

// Indexes of optWheelType.
enum class WheelType { Hot, Cold, Favourites, QuickPick };

// What a wheel has from its window.
struct WheelRun {
    WheelType type;
    const Integer& HowManyToWheel;
    const Integer& NumbersPerTicket;
    const std::string& DbName;
    std::string& TableName;  // ends as "Temp" behind a hot or cold wheel
    Integer& mode;
    Array<std::string>& QuickPicks;

    StoreTable Table() const { return {DbName, TableName}; }
};

// What cmdGenerate of frm645 does. Sets Generating for the run and mode to 1; a run that is refused for a
// missing favourite or for too little history, or that ends in an error, leaves Generating on. There is no
// handler: errors of the wheel go to the caller.
void GenerateByWheelType(Session& session, const WheelRun& wheel, const WheelWindow& window);

// Build the pool from the HowManyToWheel numbers most (hot) or least (cold) often drawn, show it in the
// favourites and wheel it. TableName names the win table and ends as "Temp". Fewer than 20 draws show "Not
// enough data to generate Hot Numbers..." (title "Not Enough Data", the word Hot for both) and end. Equal
// frequencies come in the order of their numbers. The table Temp is empty again before the tickets are made;
// Generating ends as False, unless an error goes to the caller (9 from WheelTickets, or a store error of the
// query).
void GenerateHotWheel(Session& session, const WheelRun& wheel, const WheelWindow& window,
                      const Integer& wheelLength);
void GenerateColdWheel(Session& session, const WheelRun& wheel, const WheelWindow& window,
                       const Integer& wheelLength);

// Fills the table Temp, emptied first, with the numbers 1 to upperBound + 1 and their frequencies. TableName
// becomes "Temp". An error shows its box.
void BuildTempTable(Session& session, const std::string& DbName, std::string& TableName, int upperBound,
                    const Array<Integer>& frequencies);

// Adds the first NoOfTickets rows of the wheel to lstDisplay. The pool has a spare slot behind its numbers
// and is rotated in place. Row 0 is the first `numbersPerTicket` numbers in the order of the pool; by
// WheelSize
// - 7: six rows more, each rotated by one and sorted;
// - 8: seven rows more, each rotated by one;
// - 56: raises 9, because it rotates more slots than a pool has;
// - any other: the rows behind row 0 stay empty.
// WheelSize 0, or a pool too short, raises 9. More tickets than WheelSize show "You have entered a value for
// the Number of Tickets which exceeds..." (title "Error!"), refuse the count and add nothing.
void WheelTickets(Session& session, const WheelWindow& window, Array<Integer>& pool,
                  const Integer& numbersPerTicket);

}  // namespace sorvane
