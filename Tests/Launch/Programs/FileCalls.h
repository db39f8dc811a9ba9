#pragma once

/** The calls by which the program writes files: it can be made to die in each of them, as when the power fails. */
namespace FileCalls
{
	/** The process is killed in the given call from now, counted from 1, which has not begun; of a write one half is done. */
	void DieAt(int Call);
}
