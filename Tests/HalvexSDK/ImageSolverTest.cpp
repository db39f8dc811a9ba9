#include "ImageDownloadTest.h"

#include "Images/ImageSolver.h"

using Host::FExpectedLog;

namespace
{
	class FImageSolverTest : public FImageDownloadTest
	{
	protected:
		UImageSolver* Begin(const std::vector<const char*>& Paths)
		{
			TArray<FImageObjectData> Images;
			for (const char* Path : Paths)
			{
				Images.Add(OnServer(Path));
			}
			UImageSolver* Solver = UImageSolver::SolveImages(Images, EIRS_Small);
			Listener->ListenTo(*Solver);
			Solver->Activate();
			return Solver;
		}

		bool WaitForFinish()
		{
			return Host::WaitUntil(Loop, [&] { return Listener->NumFinished > 0; });
		}
	};

	TEST_F(FImageSolverTest, BatchFinishesOnceWithResultsInTheirOrder)
	{
		Server.Serve("/a.png", Picture(8, 4));
		Server.Serve("/c.png", Picture(16, 4));
		const FExpectedLog Missing(TEXT("/b.png is not shown"));
		Begin({ "/a.png", "/b.png", "/c.png" });
		EXPECT_EQ(Listener->NumFinished, 0) << "not during the begin";
		ASSERT_TRUE(WaitForFinish());
		Loop.RunUntilIdle();
		EXPECT_EQ(Listener->NumFinished, 1);
		EXPECT_EQ(Listener->NumSolved, 3);
		EXPECT_EQ(Host::ToStd(Listener->Progress), "1/3 2/3 3/3");
		ASSERT_EQ(Listener->Batch.Num(), 3);
		EXPECT_EQ(Listener->Batch[0].Texture->GetSizeX(), 8);
		EXPECT_FALSE(Listener->Batch[1].Texture);
		EXPECT_EQ(Host::ToStd(Listener->Batch[1].Error), "the server answered 404");
		EXPECT_EQ(Listener->Batch[2].Texture->GetSizeX(), 16);
	}

	TEST_F(FImageSolverTest, SamePictureTwiceIsOneTransfer)
	{
		Server.Serve("/a.png", Picture());
		Begin({ "/a.png", "/a.png" });
		ASSERT_TRUE(WaitForFinish());
		EXPECT_EQ(Server.GetVisits("/a.png"), 1);
		EXPECT_EQ(Listener->Batch[0].Texture, Listener->Batch[1].Texture);
	}

	TEST_F(FImageSolverTest, EmptyBatchFinishesInALaterFrame)
	{
		Begin({});
		EXPECT_EQ(Listener->NumFinished, 0);
		ASSERT_TRUE(WaitForFinish());
		EXPECT_TRUE(Listener->Batch.IsEmpty());
	}

	TEST_F(FImageSolverTest, GivenUpBatchKeepsWhatHasArrived)
	{
		Server.Serve("/a.png", Picture());
		Server.Serve("/b.png", Picture());
		Settings->ParallelDownloads = 1;
		Server.Hold();
		UImageSolver* Solver = Begin({ "/a.png", "/b.png" });
		Server.Release(1);
		ASSERT_TRUE(Host::WaitUntil(Loop, [&] { return Listener->NumSolved == 1; }));
		EXPECT_EQ(Solver->GetNumDone(), 1);
		Solver->Cancel();
		Solver->Cancel();
		ASSERT_TRUE(WaitForFinish());
		EXPECT_TRUE(Listener->Batch[0].Texture);
		EXPECT_TRUE(Listener->Batch[1].bCancelled);
		EXPECT_EQ(Listener->NumFinished, 1);
		EXPECT_FALSE(Solver->IsRunning());
		EXPECT_EQ(UHalvexImageSubsystem::Get()->GetNumTransfers(), 0);
	}

	TEST_F(FImageSolverTest, BatchIsGivenUpWhenItsListenerIsGone)
	{
		Server.Serve("/a.png", Picture());
		Server.Hold();
		Begin({ "/a.png" });
		Listener.Reset();
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_EQ(UHalvexImageSubsystem::Get()->GetNumTransfers(), 0);
		Loop.RunUntilIdle();
	}

	TEST_F(FImageSolverTest, DelegateGetsTheTexturesThatArrivedInTheirOrderOnce)
	{
		Server.Serve("/a.png", Picture(8, 8));
		Server.Serve("/c.png", Picture(16, 8));
		const FExpectedLog Refused(TEXT("/b.png is not shown"));
		TArray<int32> Widths;
		int32 NumCalls = 0;
		UImageSolver::CreateImagesSolver()->RunImageSolverWithDelegate({ OnServer("/a.png"), OnServer("/b.png"), OnServer("/c.png") }, EIRS_Small,
			FImagesSolvedDelegate::CreateLambda([&](const TArray<UTexture2D*>& Textures)
			{
				++NumCalls;
				for (const UTexture2D* Texture : Textures)
				{
					Widths.Add(Texture->GetSizeX());
				}
			}));
		EXPECT_EQ(NumCalls, 0);
		ASSERT_TRUE(Host::WaitUntil(Loop, [&] { return NumCalls > 0; }));
		Loop.RunUntilIdle();
		EXPECT_EQ(NumCalls, 1);
		EXPECT_EQ(Widths, (TArray<int32>{ 8, 16 }));
	}

	TEST_F(FImageSolverTest, DelegateGetsNothingWhenAllFail)
	{
		const FExpectedLog Refused(TEXT("/b.png is not shown"));
		int32 NumTextures = INDEX_NONE;
		UImageSolver::CreateImagesSolver()->RunImageSolverWithDelegate({ OnServer("/b.png") }, EIRS_Small,
			FImagesSolvedDelegate::CreateLambda([&](const TArray<UTexture2D*>& Textures) { NumTextures = Textures.Num(); }));
		ASSERT_TRUE(Host::WaitUntil(Loop, [&] { return NumTextures != INDEX_NONE; }));
		EXPECT_EQ(NumTextures, 0);
	}
}
