#pragma once

#include <string>

#include "ecu/EcuWorld.h"

namespace tarnview {

/// Runs an outside program in its own folder. One that could not be started, or that the user left
/// alone, is told of.
RunResult RunProgram(const EcuWorld& world, const ProgramCall& call);

/// The file of a program that the settings name is there; `message` and false if not.
bool HasProgram(const EcuWorld& world, const std::string& program, Message message);

/// False for "" too.
bool HasFolder(const EcuWorld& world, const std::string& folder);

/// A program that the user stopped waiting for may still talk to the ECU, or write the files of
/// fixed names: no other is started until it has ended. The user is told; true then.
bool IsStillAtWork(const EcuWorld& world);

}  // namespace tarnview
