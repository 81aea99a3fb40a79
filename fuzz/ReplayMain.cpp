// Without libFuzzer, each fuzz target is a program that runs its entry point
// over every file of the corpus directories given on the command line, so the
// corpus doubles as a regression test under the sanitizers.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);

int main(int argc, char** argv) {
  LLVMFuzzerInitialize(&argc, &argv);
  int runs = 0;
  for (int i = 1; i < argc; ++i) {
    std::vector<std::filesystem::path> files;
    if (std::filesystem::is_directory(argv[i])) {
      for (const auto& entry : std::filesystem::directory_iterator(argv[i]))
        if (entry.is_regular_file()) files.push_back(entry.path());
    } else {
      files.emplace_back(argv[i]);
    }
    for (const auto& file : files) {
      std::ifstream in(file, std::ios::binary);
      std::vector<char> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
      LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
      ++runs;
    }
  }
  std::printf("replayed %d inputs\n", runs);
  return runs > 0 ? 0 : 1;
}
