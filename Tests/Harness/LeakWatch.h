#pragma once

#include "CoreMinimal.h"
#include "gtest/gtest.h"

namespace Host
{
	/** Fails a test that leaves reflected objects, widgets or textures alive. */
	class FLeakWatch final : public testing::EmptyTestEventListener
	{
	public:
		virtual void OnTestStart(const testing::TestInfo& TestInfo) override;
		virtual void OnTestEnd(const testing::TestInfo& TestInfo) override;

	private:
		int32 NumObjects = 0;
		int32 NumTextures = 0;
	};
}
