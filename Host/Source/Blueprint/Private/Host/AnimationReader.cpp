#include "Host/AnimationReader.h"

#include "Animation/WidgetAnimation.h"
#include "Blueprint/WidgetBlueprintGeneratedClass.h"
#include "Blueprint/WidgetTree.h"
#include "Components/Widget.h"
#include "Host/AnimatedProperty.h"
#include "Host/BlueprintMembers.h"
#include "Host/BlueprintReport.h"
#include "Host/BlueprintVariables.h"
#include "Host/PropertyJson.h"
#include "Host/Reflection/PropertyFactory.h"
#include "UObject/UnrealType.h"

namespace Host
{
	namespace
	{
		bool IsAnimationVariable(const FProperty& Property)
		{
			const FObjectProperty* Object = CastField<FObjectProperty>(&Property);
			return Object && Object->PropertyClass == UWidgetAnimation::StaticClass();
		}

		bool ReadInterpolation(const FJsonNode& Key, bool bGradual, EKeyInterpolation& Out)
		{
			static const TCHAR* const Names[] = { TEXT("Constant"), TEXT("Linear"), TEXT("Cubic") };
			const FJsonNode Node = Key.Find(TEXT("Interpolation"));
			Out = bGradual ? EKeyInterpolation::Linear : EKeyInterpolation::Constant;
			if (!Node)
			{
				return true;
			}
			for (int32 Index = 0; Index < static_cast<int32>(UE_ARRAY_COUNT(Names)); ++Index)
			{
				if (FString(Node.GetString()).Equals(Names[Index]))
				{
					Out = static_cast<EKeyInterpolation>(Index);
					if (bGradual || Out == EKeyInterpolation::Constant)
					{
						return true;
					}
					ReportBlueprintError(Node, TEXT("there is nothing between enumerators: their \"Interpolation\" is \"Constant\"."));
					return false;
				}
			}
			ReportBlueprintError(Node, TEXT("\"Interpolation\" must be \"Constant\", \"Linear\" or \"Cubic\"."));
			return false;
		}

		bool ReadTime(const FJsonNode& Key, double& OutTime)
		{
			const FJsonNode Node = Key.Find(TEXT("Time"));
			if (!Node.TryGetNumber(OutTime))
			{
				ReportBlueprintError(Node ? Node : Key, TEXT("a key needs a \"Time\" in seconds."));
				return false;
			}
			if (OutTime < 0.0)
			{
				ReportBlueprintError(Node, TEXT("the time of a key must not be negative."));
				return false;
			}
			return true;
		}

		/** Reads the value of a key into the numbers of the property. Members that are not named have the value that the widget has. */
		bool ReadKeyValue(const FJsonNode& Key, const FAnimatedProperty& Property, FPropertyValue& Value, TArrayView<double> OutChannels)
		{
			const FJsonNode Node = Key.Find(TEXT("Value"));
			if (!Node)
			{
				ReportBlueprintError(Key, TEXT("a key needs a \"Value\"."));
				return false;
			}
			if (FPropertyJson::ReadElement(Node, &Property.GetType(), Value.Get(), nullptr, [](const FString& Message) { ReportBlueprintError(Message); }) > 0)
			{
				return false;
			}
			Property.ReadChannels(Value.Get(), OutChannels);
			return true;
		}

		void ReadKey(const FJsonNode& Key, const FAnimatedProperty& Property, FAnimationCurve& Curve)
		{
			if (!Key.IsObject())
			{
				ReportBlueprintError(Key, FString::Printf(TEXT("a key must be an object, not %s."), DescribeJsonKind(Key.GetKind())));
				return;
			}
			static const TCHAR* const Known[] = { TEXT("Time"), TEXT("Value"), TEXT("Interpolation") };
			ReportUnknownMembers(Key, Known, TEXT("a key"));
			double Time = 0.0;
			double Channels[FAnimatedProperty::MaxChannels];
			const TArrayView<double> Used(Channels, Property.GetNumChannels());
			EKeyInterpolation Interpolation;
			FPropertyValue Value = Property.CopyValue();
			if (!ReadTime(Key, Time) || !ReadKeyValue(Key, Property, Value, Used) || !ReadInterpolation(Key, Property.IsGradual(), Interpolation))
			{
				return;
			}
			if (!Curve.AddKey(Time, Used, Interpolation))
			{
				ReportBlueprintError(Key.Find(TEXT("Time")), TEXT("the keys must be in the order of their times, each later than the one before."));
			}
		}

		UObject* FindTarget(UWidgetBlueprintGeneratedClass& Class, const FJsonNode& Track, FName& OutName)
		{
			const FJsonNode Node = Track.Find(TEXT("Widget"));
			if (!Node)
			{
				return Class.GetDefaultObject();
			}
			OutName = FName(Node.GetString());
			const UWidgetTree* Tree = Class.FindTreeTemplate();
			UWidget* Widget = Tree && !OutName.IsNone() ? Tree->FindWidget(OutName) : nullptr;
			if (!Widget)
			{
				ReportBlueprintError(Node, Node.IsString() ? FString::Printf(TEXT("there is no widget '%s'."), *OutName.ToString()) : FString(TEXT("\"Widget\" must be the name of one.")));
			}
			return Widget;
		}

		void ReadTrack(UWidgetBlueprintGeneratedClass& Class, const FJsonNode& Node, TArray<FWidgetAnimationTrack>& OutTracks)
		{
			if (!Node.IsObject())
			{
				ReportBlueprintError(Node, FString::Printf(TEXT("a track must be an object, not %s."), DescribeJsonKind(Node.GetKind())));
				return;
			}
			static const TCHAR* const Known[] = { TEXT("Widget"), TEXT("Property"), TEXT("Keys") };
			ReportUnknownMembers(Node, Known, TEXT("a track"));
			FName WidgetName;
			UObject* Target = FindTarget(Class, Node, WidgetName);
			if (!Target)
			{
				return;
			}
			const FJsonNode PropertyNode = Node.Find(TEXT("Property"));
			FString Path;
			FString Reason = TEXT("a track needs a \"Property\": the name of one.");
			const TOptional<FAnimatedProperty> Property = PropertyNode.TryGetString(Path) ? FAnimatedProperty::Find(*Target, Path, Reason) : TOptional<FAnimatedProperty>();
			if (!Property)
			{
				ReportBlueprintError(PropertyNode ? PropertyNode : Node, Reason);
				return;
			}
			FAnimationCurve Curve(Property->GetNumChannels());
			const FJsonNode Keys = Node.Find(TEXT("Keys"));
			if (!Keys.IsArray() || Keys.Num() == 0)
			{
				ReportBlueprintError(Keys ? Keys : Node, TEXT("a track needs \"Keys\": an array of one or more."));
				return;
			}
			for (const FJsonNode Key : Keys)
			{
				ReadKey(Key, *Property, Curve);
			}
			if (Curve.GetNumKeys() > 0)
			{
				OutTracks.Add({ WidgetName, Path, MoveTemp(Curve) });
			}
		}

		double ReadDuration(const FJsonNode& Animation, const TArray<FWidgetAnimationTrack>& Tracks)
		{
			double LastKey = 0.0;
			for (const FWidgetAnimationTrack& Track : Tracks)
			{
				LastKey = FMath::Max(LastKey, Track.Curve.GetLastTime());
			}
			const FJsonNode Node = Animation.Find(TEXT("Duration"));
			double Duration = 0.0;
			if (Node && !(Node.TryGetNumber(Duration) && Duration > 0.0))
			{
				ReportBlueprintError(Node, TEXT("\"Duration\" must be a time in seconds, more than 0."));
				return LastKey;
			}
			return Node ? Duration : LastKey;
		}

		UWidgetAnimation* ReadAnimation(UWidgetBlueprintGeneratedClass& Class, const FJsonNode& Node, FName Name)
		{
			static const TCHAR* const Known[] = { TEXT("Duration"), TEXT("Tracks") };
			ReportUnknownMembers(Node, Known, TEXT("an animation"));
			const FJsonNode TrackNodes = Node.Find(TEXT("Tracks"));
			TArray<FWidgetAnimationTrack> Tracks;
			if (TrackNodes.IsArray())
			{
				for (const FJsonNode Track : TrackNodes)
				{
					ReadTrack(Class, Track, Tracks);
				}
			}
			else
			{
				ReportBlueprintError(TrackNodes ? TrackNodes : Node, TEXT("an animation needs \"Tracks\": an array of tracks."));
			}
			const double Duration = ReadDuration(Node, Tracks);
			UWidgetAnimation* Animation = NewObject<UWidgetAnimation>(&Class, Name, RF_Public);
			Animation->SetTracks(MoveTemp(Tracks), Duration);
			return Animation;
		}
	}

	void AddAnimationVariables(UWidgetBlueprintGeneratedClass& Class, const FJsonNode& Animations)
	{
		if (Animations && !Animations.IsObject())
		{
			ReportBlueprintError(Animations, TEXT("\"Animations\" must be an object of animations by name."));
			return;
		}
		for (const FJsonNode Animation : Animations)
		{
			const FName Name(Animation.GetKey());
			if (Name.IsNone())
			{
				ReportBlueprintError(Animation, TEXT("an animation needs a name."));
				continue;
			}
			if (const FProperty* Existing = FindVariable(Class, Name))
			{
				if (!IsAnimationVariable(*Existing))
				{
					ReportBlueprintError(Animation, FString::Printf(TEXT("there is a property '%s' already, which is no animation."), *Name.ToString()));
				}
				continue;
			}
			FProperty* Property = MakeProperty<TObjectPtr<UWidgetAnimation>>(&Class, Name);
			Property->SetPropertyFlags(CPF_Transient | CPF_BlueprintVisible | CPF_BlueprintReadOnly);
			Property->SetMetaData(TEXT("Category"), TEXT("Animations"));
			Class.AddCppProperty(Property);
		}
	}

	void ReadAnimations(UWidgetBlueprintGeneratedClass& Class, const FJsonNode& Animations)
	{
		for (const FJsonNode Node : Animations)
		{
			const FName Name(Node.GetKey());
			const FProperty* Variable = Class.FindPropertyByName(Name);
			if (!Variable || !IsAnimationVariable(*Variable))
			{
				continue;
			}
			if (StaticFindObjectFast(nullptr, &Class, Name))
			{
				ReportBlueprintError(Node, FString::Printf(TEXT("there is a function or an animation '%s' already."), *Name.ToString()));
				continue;
			}
			Class.Animations.Add(ReadAnimation(Class, Node, Name));
		}
	}
}
