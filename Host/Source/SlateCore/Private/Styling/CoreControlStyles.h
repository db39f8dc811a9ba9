#pragma once

class FSlateStyleSet;

namespace Host
{
	/** Adds to the core style the looks of check boxes, sliders, progress bars, scroll bars and text boxes. */
	void AddCoreControlStyles(FSlateStyleSet& Set);
}
