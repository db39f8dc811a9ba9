#pragma once

#include "EngineTest.h"

#include "Configurator/HalvexConfiguratorDataAsset.h"
#include "Configurator/HalvexVariantHandler.h"
#include "TestCatalogue.h"
#include "UObject/StrongObjectPtr.h"
#include "VariantListener.h"

/** A handler of the test catalogue, and someone who listens to it. */
class FConfiguratorTest : public testing::Test
{
protected:
	FConfiguratorTest()
		: Asset(UHalvexConfiguratorDataAsset::CreateFromCatalogue(Host::TestCatalogue::Make(), {}))
		, Handler(NewObject<UHalvexVariantHandler>())
		, Listener(NewObject<UVariantListener>())
	{
		Handler->SetVariantConfigurator(Asset.Get());
		Listener->ListenTo(*Handler);
	}

	void Select(const TCHAR* Category, const TCHAR* SubCategory)
	{
		Handler->SetCategory(FName(Category));
		Handler->SetSubCategory(FName(SubCategory));
	}

	bool Choose(const TCHAR* Variant) { return Handler->SetVariant(FName(Variant), true); }

	std::string Heard() { return Host::ToStd(Listener->TakeStory()); }

	/** "Kitchen.Worktop Marble 900, ...". */
	std::string Changes() const
	{
		TArray<FString> Lines;
		for (const TPair<FName, FHalvexConfigProduct>& Change : Handler->GetConfigtorChangeList())
		{
			Lines.Add(FString::Printf(TEXT("%s %s %.0f"), *Change.Key.ToString(), *Change.Value.ProductKey.ToString(), Change.Value.Price));
		}
		return Host::ToStd(FString::Join(Lines, TEXT(", ")));
	}

	static std::string Join(const TArray<FName>& Names)
	{
		return Host::ToStd(FString::JoinBy(Names, TEXT(" "), [](const FName& Name) { return Name.ToString(); }));
	}

	/** "Oak=The Oak, ...". */
	static std::string Join(const TArray<FHalvexItemOverrideData>& Items)
	{
		return Host::ToStd(FString::JoinBy(Items, TEXT(", "), [](const FHalvexItemOverrideData& Item) { return Item.KeyName.ToString() + TEXT("=") + Item.DisplayText.ToString(); }));
	}

	std::string Active(const TCHAR* Category, const TCHAR* SubCategory) const
	{
		return Host::ToStd(Handler->GetActiveVariant(FName(Category), FName(SubCategory)));
	}

	TStrongObjectPtr<UHalvexConfiguratorDataAsset> Asset;
	TStrongObjectPtr<UHalvexVariantHandler> Handler;
	TStrongObjectPtr<UVariantListener> Listener;
};
