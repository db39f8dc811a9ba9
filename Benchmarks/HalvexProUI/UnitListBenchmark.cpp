#include "Components/ListView.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Engine/World.h"
#include "EngineBenchmark.h"
#include "Filters/UnitFilterCollection.h"
#include "Filters/UnitNumberRangeFilter.h"
#include "Filters/UnitsFilterManager.h"
#include "Framework/Application/SlateApplication.h"
#include "Host/Clock.h"
#include "Host/Files.h"
#include "Host/Mounts.h"
#include "Host/SlateLoop.h"
#include "Host/SlateRoot.h"
#include "Host/WidgetActivity.h"
#include "MadeUpProject.h"
#include "UObject/GarbageCollection.h"
#include "UObject/StrongObjectPtr.h"
#include "UnitVolumes/UnitVolumesManager.h"
#include "UserWidget/Exteriors/HxExteriorUnitList.h"
#include "Widgets/SWindow.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>

namespace
{
	int64 GetHeapBytes()
	{
		return int64(mallinfo2().uordblks + mallinfo2().hblkhd);
	}

	/** A list of all units of a made-up project, 1080 high. */
	class FShownUnits
	{
	public:
		/** @param Path the blueprint of the list */
		FShownUnits(int64 NumUnits, const TCHAR* Path)
		{
			UGameInstance* const Instance = GEngine->GetGameInstance();
			Manager = Instance->GetWorld()->SpawnActor<AUnitVolumesManager>();
			Manager->SpawnUnits(MakeProjectUnits(int32(NumUnits)));
			List.Reset(CastChecked<UHxExteriorUnitList>(CreateWidget<UUserWidget>(Instance, LoadObject<UClass>(nullptr, Path))));
			List->AddToViewport();
			Frame();
			const int64 Before = GetHeapBytes();
			Manager->AnnounceUnitData();
			Frame();
			FillBytes = GetHeapBytes() - Before;
		}

		~FShownUnits()
		{
			List->RemoveFromParent();
			List.Reset();
			Manager->SpawnUnits(TArray<FProjectUnit>());
			Manager->Destroy();
			Frame();
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		}

		/** A frame up to its draw elements. */
		void Frame()
		{
			Host::FWidgetActivity::BeginFrame(Host::FClock::Now(), 1.0f / 60.0f);
			Host::FSlateLoop::Refresh();
			GetBenchmarkLoop().GetWindow()->GetRoot().ClearDamage();
		}

		TStrongObjectPtr<UHxExteriorUnitList> List;
		AUnitVolumesManager* Manager = nullptr;
		int64 FillBytes = 0;
	};

	/** The list of the content, which sorts by a key of its own and counts. */
	constexpr const TCHAR* ShippedList = TEXT("/HalvexPro/Exteriors/UnitList.UnitList_C");

	/** A list that shows nothing but its rows, with the graph that is given; its content is there as long as this. */
	class FPlainList
	{
	public:
		explicit FPlainList(const char* Graph)
		{
			std::string Pattern = (std::filesystem::temp_directory_path() / "HalvexBenchmark-XXXXXX").string();
			verify(mkdtemp(Pattern.data()));
			Folder = Pattern;
			verify(Host::FMounts::Add(Root, FString(UTF8_TO_TCHAR(Pattern.c_str()))));
			Write("List.widget.json", R"({ "Parent": "/Script/HalvexProUI.HxExteriorUnitList", "Root": { "Class": "ListView", "Name": "ListViewContainer",
				"Properties": { "EntryWidgetClass": "/HalvexPro/Exteriors/UnitRow.UnitRow_C" } } })");
			Write("List.lua", Graph);
		}

		~FPlainList()
		{
			Host::FMounts::Remove(Root);
			std::filesystem::remove_all(Folder);
		}

		const TCHAR* GetPath() const { return TEXT("/BenchmarkScreens/List.List_C"); }

	private:
		void Write(const char* Name, const char* Text) const
		{
			FString Reason;
			const bool bWritten = Host::FFiles::Write(FString(UTF8_TO_TCHAR((Folder / Name).c_str())), Text, int64(std::strlen(Text)), Reason);
			checkf(bWritten, TEXT("%s"), *Reason);
		}

		const FString Root = TEXT("/BenchmarkScreens/");
		std::filesystem::path Folder;
	};

	/** What earlier turns left behind is collected now and then, outside of what is measured, as the engine does between frames. */
	void CollectAside(benchmark::State& State, int32& Turn)
	{
		if (++Turn % 16 == 0)
		{
			State.PauseTiming();
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
			State.ResumeTiming();
		}
	}

	/** From the result of the scene's filters to the painted list. */
	void UnitListFilled(benchmark::State& State)
	{
		FShownUnits Shown(State.range(0), ShippedList);
		int32 Turn = 0;
		for (auto _ : State)
		{
			Shown.List->Received_FilterResult(Shown.Manager->GetUnitFilterManager()->GetCurrentFilterResult());
			Shown.Frame();
			CollectAside(State, Turn);
		}
		State.counters["bytes"] = double(Shown.FillBytes) / double(State.range(0));
		State.SetComplexityN(State.range(0));
	}

	/** From a filter that moves, as with the drag of a range, to the painted list. */
	void UnitListFollowsAFilter(benchmark::State& State)
	{
		FShownUnits Shown(State.range(0), ShippedList);
		UUnitFilterCollection* const Collection = UUnitFilterCollection::CreateUnitFilterCollection({}, false);
		Shown.Manager->GetUnitFilterManager()->RegisterFilterCollection(Collection);
		int32 Turn = 0;
		for (auto _ : State)
		{
			Collection->ReplaceFilters({ UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField::Price, 0.0, 200000.0 + 10000.0 * (Turn % 60)) });
			Shown.Frame();
			CollectAside(State, Turn);
		}
		State.SetComplexityN(State.range(0));
	}

	void Search(benchmark::State& State, const TCHAR* Path)
	{
		FShownUnits Shown(State.range(0), Path);
		const FText Texts[] = { FText::FromString(TEXT("1.0")), FText::FromString(TEXT("3.1")), FText::FromString(TEXT("block 1")), FText::FromString(TEXT("nothing")) };
		int32 Turn = 0;
		for (auto _ : State)
		{
			Shown.List->FilterUnitList(Texts[++Turn % 4]);
			Shown.Frame();
		}
		State.SetComplexityN(State.range(0));
	}

	/** A text is searched in all names, up to the painted list. */
	void UnitListSearched(benchmark::State& State)
	{
		Search(State, ShippedList);
	}

	/** The same with a graph that decides for each unit. */
	void UnitListSearchedByAGraph(benchmark::State& State)
	{
		const FPlainList Plain("function OnElementFilter(self, Text, Unit) return string.find(Unit.Name, Text, 1, true) ~= nil end");
		Search(State, Plain.GetPath());
	}

	void Sort(benchmark::State& State, const TCHAR* Path)
	{
		FShownUnits Shown(State.range(0), Path);
		for (auto _ : State)
		{
			State.PauseTiming();
			// The order of the project, which is not that of the names.
			Shown.List->Received_FilterResult(Shown.Manager->GetUnitFilterManager()->GetCurrentFilterResult());
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
			State.ResumeTiming();
			Shown.List->SortUnitList();
			Shown.Frame();
		}
		State.SetComplexityN(State.range(0));
	}

	/** All units sorted by name, up to the painted list. */
	void UnitListSorted(benchmark::State& State)
	{
		const FPlainList Plain("");
		Sort(State, Plain.GetPath());
	}

	/** The same by price, with a graph that compares. */
	void UnitListSortedByAGraph(benchmark::State& State)
	{
		const FPlainList Plain("function OnElementSorted(self, A, B) return A.Price < B.Price end");
		Sort(State, Plain.GetPath());
	}

	/** The wheel turned over the list of the content, a notch a frame. */
	void UnitListScrolled(benchmark::State& State)
	{
		FShownUnits Shown(State.range(0), ShippedList);
		const FVector2f Mouse(200.0f, 600.0f);
		FSlateApplication::Get().ProcessMouseMoveEvent(FPointerEvent(0, Mouse, Mouse, TSet<FKey>(), EKeys::Invalid, 0.0f, FModifierKeysState()));
		const float Start = Shown.List->ListViewContainer->GetScrollOffset();
		int32 Turn = 0;
		float Farthest = 0.0f;
		for (auto _ : State)
		{
			const float Delta = ++Turn / 200 % 2 == 0 ? -1.0f : 1.0f;
			FSlateApplication::Get().ProcessMouseWheelOrGestureEvent(FPointerEvent(0, Mouse, Mouse, TSet<FKey>(), EKeys::MouseWheelAxis, Delta, FModifierKeysState()));
			Shown.Frame();
			Farthest = FMath::Max(Farthest, Shown.List->ListViewContainer->GetScrollOffset() - Start);
		}
		State.counters["rows"] = Farthest;
	}
}

BENCHMARK(UnitListFilled)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Complexity();
BENCHMARK(UnitListFollowsAFilter)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Complexity();
BENCHMARK(UnitListSearched)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Complexity();
BENCHMARK(UnitListSearchedByAGraph)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Complexity();
BENCHMARK(UnitListSorted)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Complexity();
BENCHMARK(UnitListSortedByAGraph)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(UnitListScrolled)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);
