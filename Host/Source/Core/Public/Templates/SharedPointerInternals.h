#pragma once

#include "Templates/SharedPointerFwd.h"
#include "Templates/UnrealTemplate.h"

#include <atomic>

/** What stands behind the shared pointers: counts of references and the end of the object. */
namespace SharedPointerInternals
{
	/** A count of references, for one thread or for several. */
	template <ESPMode Mode>
	class TReferenceCount
	{
	public:
		void Increment()
		{
			if constexpr (Mode == ESPMode::ThreadSafe)
			{
				Count.fetch_add(1, std::memory_order_relaxed);
			}
			else
			{
				++Count;
			}
		}

		/** Returns whether that was the last one. */
		bool Decrement()
		{
			if constexpr (Mode == ESPMode::ThreadSafe)
			{
				return Count.fetch_sub(1, std::memory_order_acq_rel) == 1;
			}
			else
			{
				return --Count == 0;
			}
		}

		/** Increments unless there is none left; returns whether it did. */
		bool IncrementIfAny()
		{
			if constexpr (Mode == ESPMode::ThreadSafe)
			{
				int32 Seen = Count.load(std::memory_order_relaxed);
				while (Seen != 0 && !Count.compare_exchange_weak(Seen, Seen + 1, std::memory_order_acquire, std::memory_order_relaxed))
				{
				}
				return Seen != 0;
			}
			else
			{
				return Count != 0 && ++Count;
			}
		}

		int32 Get() const
		{
			return Count;
		}

	private:
		std::conditional_t<Mode == ESPMode::ThreadSafe, std::atomic<int32>, int32> Count{ 1 };
	};

	template <ESPMode Mode>
	class TReferenceController : private FNoncopyable
	{
	public:
		virtual ~TReferenceController() = default;

		void AddShared()
		{
			Shared.Increment();
		}

		bool AddSharedIfAlive()
		{
			return Shared.IncrementIfAny();
		}

		void ReleaseShared()
		{
			if (Shared.Decrement())
			{
				DestroyObject();
				ReleaseWeak();
			}
		}

		void AddWeak()
		{
			Weak.Increment();
		}

		void ReleaseWeak()
		{
			if (Weak.Decrement())
			{
				delete this;
			}
		}

		int32 GetSharedCount() const
		{
			return Shared.Get();
		}

	private:
		virtual void DestroyObject() = 0;

		TReferenceCount<Mode> Shared;
		/** The shared references hold one weak reference together. */
		TReferenceCount<Mode> Weak;
	};

	/** Of an object that stands elsewhere. */
	template <typename ObjectType, typename DeleterType, ESPMode Mode>
	class TOutsideController final : public TReferenceController<Mode>
	{
	public:
		TOutsideController(ObjectType* InObject, DeleterType&& InDeleter)
			: Object(InObject)
			, Deleter(static_cast<DeleterType&&>(InDeleter))
		{
		}

	private:
		virtual void DestroyObject() override
		{
			Deleter(Object);
		}

		ObjectType* Object;
		DeleterType Deleter;
	};

	/** With the object inside: one allocation for both. */
	template <typename ObjectType, ESPMode Mode>
	class TInsideController final : public TReferenceController<Mode>
	{
	public:
		template <typename... ArgTypes>
		explicit TInsideController(ArgTypes&&... Args)
		{
			::new (static_cast<void*>(Storage)) ObjectType(static_cast<ArgTypes&&>(Args)...);
		}

		ObjectType* GetObject()
		{
			return reinterpret_cast<ObjectType*>(Storage);
		}

	private:
		virtual void DestroyObject() override
		{
			GetObject()->~ObjectType();
		}

		alignas(ObjectType) uint8 Storage[sizeof(ObjectType)];
	};

	template <typename ObjectType>
	struct TDefaultDeleter
	{
		void operator()(ObjectType* Object) const
		{
			delete Object;
		}
	};

	/** What MakeShareable returns: an object waiting for its first shared pointer. */
	template <typename ObjectType, typename DeleterType>
	struct TRawPointerProxy
	{
		ObjectType* Object;
		DeleterType Deleter;
	};

	/** One shared reference to a controller, or none. */
	template <ESPMode Mode>
	class TSharedReferencer
	{
	public:
		TSharedReferencer() = default;
		/** Takes over a reference that is already counted. */
		explicit TSharedReferencer(TReferenceController<Mode>* InController) : Controller(InController) {}
		TSharedReferencer(const TSharedReferencer& Other) : Controller(Other.Controller) { if (Controller) { Controller->AddShared(); } }
		TSharedReferencer(TSharedReferencer&& Other) : Controller(Other.Controller) { Other.Controller = nullptr; }
		~TSharedReferencer() { if (Controller) { Controller->ReleaseShared(); } }

		TSharedReferencer& operator=(TSharedReferencer Other)
		{
			Swap(Controller, Other.Controller);
			return *this;
		}

		TReferenceController<Mode>* Get() const { return Controller; }

	private:
		TReferenceController<Mode>* Controller = nullptr;
	};

	/** One weak reference to a controller, or none. */
	template <ESPMode Mode>
	class TWeakReferencer
	{
	public:
		TWeakReferencer() = default;
		explicit TWeakReferencer(TReferenceController<Mode>* InController) : Controller(InController) { if (Controller) { Controller->AddWeak(); } }
		TWeakReferencer(const TWeakReferencer& Other) : TWeakReferencer(Other.Controller) {}
		TWeakReferencer(TWeakReferencer&& Other) : Controller(Other.Controller) { Other.Controller = nullptr; }
		~TWeakReferencer() { if (Controller) { Controller->ReleaseWeak(); } }

		TWeakReferencer& operator=(TWeakReferencer Other)
		{
			Swap(Controller, Other.Controller);
			return *this;
		}

		bool IsAlive() const { return Controller != nullptr && Controller->GetSharedCount() > 0; }
		TSharedReferencer<Mode> Lock() const { return Controller != nullptr && Controller->AddSharedIfAlive() ? TSharedReferencer<Mode>(Controller) : TSharedReferencer<Mode>(); }

	private:
		TReferenceController<Mode>* Controller = nullptr;
	};
}
