#pragma once

#include <string>
#include <vector>

/** What running a program took. */
struct FChildRun
{
	/** From before the start to the text sought in what it prints; to its end when none was sought. In seconds. */
	double Seconds = 0.0;
	/** Processor time of the whole run, in seconds. */
	double ProcessorSeconds = 0.0;
	/** It ended with code 0, and printed what was sought. */
	bool bSucceeded = false;
};

/** Runs a program to its end. The first argument is its path. */
FChildRun RunChild(const std::vector<std::string>& Arguments, const std::string& Sought = std::string());
