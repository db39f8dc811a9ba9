#include "Host/FontTable.h"

namespace Host
{
	TSharedRef<const FResolvedFont> FFontTable::FindOrMake(const FFontRequest& Request, const FCompositeFont* Font)
	{
		if (Latest.IsValid() && Latest->GetRequest() == Request)
		{
			return Latest.ToSharedRef();
		}
		if (const TSharedPtr<const FResolvedFont>* Known = Fonts.Find(Request))
		{
			Latest = *Known;
			return Latest.ToSharedRef();
		}
		if (Fonts.Num() >= CleanUpAt)
		{
			DropUnused();
		}
		TSharedPtr<const FCompositeFaces>& Family = Families.FindOrAdd({ Request.Revision, Request.Typeface, Request.Fallback });
		if (!Family.IsValid())
		{
			Family = MakeShared<FCompositeFaces>(Faces, Font, Request.Typeface, Request.Fallback);
		}
		const TSharedRef<const FResolvedFont> Result = MakeShared<FResolvedFont>(Request, Family.ToSharedRef());
		Fonts.Add(Request, Result);
		Latest = Result;
		return Result;
	}

	void FFontTable::DropUnused()
	{
		Latest.Reset();
		for (auto It = Fonts.CreateIterator(); It; ++It)
		{
			if (It.Value().IsUnique())
			{
				It.RemoveCurrent();
			}
		}
		for (auto It = Families.CreateIterator(); It; ++It)
		{
			if (It.Value().IsUnique())
			{
				It.RemoveCurrent();
			}
		}
		CleanUpAt = FMath::Max(64, Fonts.Num() * 2);
	}

	void FFontTable::Empty()
	{
		Latest.Reset();
		Fonts.Empty();
		Families.Empty();
	}
}
