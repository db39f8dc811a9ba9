#include "Widgets/SLeafWidget.h"

FChildren* SLeafWidget::GetChildren()
{
	// One for all: there is nothing in it, and nobody asks it for its owner.
	static FNoChildren NoChildren(nullptr);
	return &NoChildren;
}

void SLeafWidget::OnArrangeChildren(const FGeometry&, FArrangedChildren&) const
{
}
