#include "records/Outside.h"

#include <ctime>
#include <iostream>

#include "platform/SystemFiles.h"
#include "platform/Text.h"

namespace sorvane::Records {

namespace {

Moment LocalTime() {
    const std::time_t now = std::time(nullptr);
    const std::tm* local = std::localtime(&now);
    if (local == nullptr) Raise(ErrorNumber::InvalidProcedureCall);
    return {Date::FromYmd(local->tm_year + 1900, local->tm_mon + 1, local->tm_mday), local->tm_hour,
            local->tm_min, local->tm_sec};
}

std::chrono::milliseconds SteadyTime() {
    return std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
}

constexpr int BarWidth = 30;
constexpr std::string_view WipeLine = "\r\x1b[K";

}  // namespace

std::string Stamp(const Moment& moment) {
    const std::string time =
        std::to_string(1'000'000 + moment.hour * 10'000 + moment.minute * 100 + moment.second);
    return moment.day.ToText() + "-" + time.substr(1);
}

Outside Outside::OfTheSystem(const fs::path& calledAs) {
    return {std::cout, std::cerr, WordsGoToATerminal(), LocalTime, SteadyTime, ProgramFolder(calledAs)};
}

std::string WhatHappened(int number) {
    const auto sentence = [number]() -> std::string {
        switch (number) {
            case ErrorNumber::StoreFileNotFound:
                return "there is no such file";
            case ErrorNumber::NoPermission:
                return "this can't be read or written, or is no file";
            case ErrorNumber::Locked:
                return "another program holds the file; close it or try again";
            case ErrorNumber::NotADatabase:
                return "this is no database, or it is damaged";
            case ErrorNumber::DiskFull:
                return "the disk is full";
            case ErrorNumber::DiskError:
                return "the disk fails";
            case ErrorNumber::PathFileAccess:
            case ErrorNumber::PathNotFound:
                return "this can't be made";
            default:
                return std::string(Sentence(number));
        }
    };
    return sentence() + " (" + Str(number) + ")";
}

std::string Counted(long count, std::string_view one) {
    return Str(count) + " " + std::string(one) + (count == 1 ? "" : "s");
}

void Progress::Tell(double done, double inAll) {
    constexpr Time ASecond{1000};
    if (!outside_.terminal || inAll <= 0) return;
    const int percent = static_cast<int>(100 * done / inAll);
    if (percent == shown_ || outside_.clock() - begun_ < ASecond) return;
    shown_ = percent;
    const auto filled = static_cast<std::size_t>(BarWidth * percent / 100);
    outside_.words << WipeLine << what_ << " [" << std::string(filled, '#')
                   << std::string(BarWidth - filled, '.') << "] " << percent << " %" << std::flush;
}

void Progress::Wipe() {
    if (shown_ < 0) return;
    outside_.words << WipeLine << std::flush;
    shown_ = -1;
}

}  // namespace sorvane::Records
