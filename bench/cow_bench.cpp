// How far are the copy-on-write containers from the standard ones where nothing is shared, and how much do they save
// where something is? Each row stands beside the standard container doing the same.

#include "cow_List.h"
#include "cow_Map.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <random>
#include <string>
#include <vector>

namespace {

int Count(benchmark::State const& state) { return static_cast<int>(state.range(0)); }

std::vector<int> Numbers(benchmark::State const& state)
{
  std::vector<int> numbers(static_cast<std::size_t>(state.range(0)));
  std::iota(numbers.begin(), numbers.end(), 0);
  return numbers;
}

void SetItems(benchmark::State& state) { state.SetItemsProcessed(state.iterations() * state.range(0)); }

// Functions of their own, so that the loops have all registers in both cases and the containers stay in memory, as they
// do wherever something else owns them.

template <class Container>
[[gnu::noinline]] void Fill(Container& container, int count)
{
  for (int i = 0; i < count; ++i) {
    // NOLINTNEXTLINE(performance-inefficient-vector-operation): growth is what is measured.
    if constexpr (requires { container.Append(i); }) container.Append(i);
    else container.push_back(i);
  }
}

template <class Container>
void BM_Append(benchmark::State& state)
{
  for (auto _ : state) {
    Container container;
    Fill(container, Count(state));
    benchmark::DoNotOptimize(&container);
  }
  SetItems(state);
}

template <class Container>
[[gnu::noinline]] long long Sum(Container const& container)
{
  long long sum = 0;
  for (int const element : container) sum += element;
  return sum;
}

template <class Container>
void Read(benchmark::State& state, Container const& container)
{
  for (auto _ : state) benchmark::DoNotOptimize(Sum(container));
  SetItems(state);
}

void BM_ReadList(benchmark::State& state)
{
  cow_List<int> list;
  Fill(list, Count(state));
  Read(state, list);
}

void BM_ReadVector(benchmark::State& state)
{
  Read(state, Numbers(state));
}

std::string Name(int i) { return "Interaction-" + std::to_string(i); }

void BM_CopyStringListAndWriteOne(benchmark::State& state)
{
  cow_List<std::string> list;
  for (int i = 0; i < Count(state); ++i) list.Append(Name(i));
  for (auto _ : state) {
    cow_List<std::string> copy(list);
    copy.Put(Count(state) / 2, "changed");
    benchmark::DoNotOptimize(copy.Last().data());
  }
}

void BM_CopyStringVectorAndWriteOne(benchmark::State& state)
{
  std::vector<std::string> vector;
  vector.reserve(static_cast<std::size_t>(Count(state)));
  for (int i = 0; i < Count(state); ++i) vector.push_back(Name(i));
  for (auto _ : state) {
    std::vector<std::string> copy(vector);
    copy[copy.size() / 2] = "changed";
    benchmark::DoNotOptimize(copy.back().data());
  }
}

void Enter(cow_Map<int, int>& map, int key) { map.Insert(key, key); }
void Enter(std::map<int, int>& map, int key) { map.insert_or_assign(key, key); }
int LookUp(cow_Map<int, int> const& map, int key) { return map.ConstGet(key); }
int LookUp(std::map<int, int> const& map, int key) { return map.at(key); }

std::vector<int> ShuffledKeys(benchmark::State const& state)
{
  std::vector<int> keys = Numbers(state);
  std::shuffle(keys.begin(), keys.end(), std::mt19937(1));
  return keys;
}

template <class Map>
void BM_MapInsert(benchmark::State& state)
{
  auto const keys = ShuffledKeys(state);
  for (auto _ : state) {
    Map map;
    for (int const key : keys) Enter(map, key);
    benchmark::DoNotOptimize(&map);
  }
  SetItems(state);
}

template <class Map>
void BM_MapLookUp(benchmark::State& state)
{
  auto const keys = ShuffledKeys(state);
  Map map;
  for (int const key : keys) Enter(map, key);
  for (auto _ : state) {
    int sum = 0;
    for (int const key : keys) sum ^= LookUp(map, key);
    benchmark::DoNotOptimize(sum);
  }
  SetItems(state);
}

template <class Map>
void BM_MapCopyAndWriteOne(benchmark::State& state)
{
  Map map;
  for (int const key : ShuffledKeys(state)) Enter(map, key);
  for (auto _ : state) {
    Map copy(map);
    Enter(copy, Count(state) / 2);
    benchmark::DoNotOptimize(&copy);
  }
}

#define GOAL(function, name) BENCHMARK(function)->Name("goal/" name)->Repetitions(5)
GOAL(BM_Append<cow_List<int>>, "list_append/ours")->Arg(100)->Arg(10'000)->Arg(1'000'000);
GOAL(BM_Append<std::vector<int>>, "list_append/baseline")->Arg(100)->Arg(10'000)->Arg(1'000'000);
GOAL(BM_ReadList, "list_read/ours")->Arg(100)->Arg(10'000)->Arg(1'000'000);
GOAL(BM_ReadVector, "list_read/baseline")->Arg(100)->Arg(10'000)->Arg(1'000'000);
GOAL(BM_CopyStringListAndWriteOne, "list_copy_write/ours")->Arg(100)->Arg(100'000);
GOAL(BM_CopyStringVectorAndWriteOne, "list_copy_write/baseline")->Arg(100)->Arg(100'000);
BENCHMARK(BM_MapInsert<cow_Map<int, int>>)->Arg(100)->Arg(100'000);
BENCHMARK(BM_MapInsert<std::map<int, int>>)->Arg(100)->Arg(100'000);
BENCHMARK(BM_MapLookUp<cow_Map<int, int>>)->Arg(100)->Arg(100'000);
BENCHMARK(BM_MapLookUp<std::map<int, int>>)->Arg(100)->Arg(100'000);
BENCHMARK(BM_MapCopyAndWriteOne<cow_Map<int, int>>)->Arg(100)->Arg(100'000);
BENCHMARK(BM_MapCopyAndWriteOne<std::map<int, int>>)->Arg(100)->Arg(100'000);

}  // namespace
