#pragma once

#include "CoreMinimal.h"
#include "Cpu/CornerMasks.h"
#include "Rendering/SlateRenderer.h"

namespace Host
{
	/**
	 * Draws with the processor alone, the same to the bit on every machine. Each surface keeps its pixels, so that only
	 * what changed is drawn again.
	 */
	class FCpuRenderer final : public FSlateRenderer
	{
	public:
		virtual ~FCpuRenderer() override;

		virtual bool Initialize(FString& OutError) override;
		virtual void Destroy() override;
		virtual const TCHAR* GetName() const override;
		virtual TUniquePtr<FWindowSurface> CreateSurface(FIntPoint Size, void* NativeWindow) override;

	private:
		friend class FCpuSurface;

		FCornerMasks CornerMasks;
		int32 NumSurfaces = 0;
	};
}
