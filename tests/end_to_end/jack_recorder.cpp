// Prints every MIDI message that arrives at the JACK port "recorder:input", one line of hexadecimal
// pairs each, however many arrive at once: JACK's own jack_midi_dump keeps no more than 127 between
// two looks, and a reset of the output sends more than that.
#include <cstdio>
#include <semaphore>
#include <vector>

#include <jack/jack.h>
#include <jack/midiport.h>
#include <jack/ringbuffer.h>

namespace {

constexpr std::size_t kQueueBytes = 1u << 20;

struct Recorder {
  jack_port_t* input = nullptr;
  jack_ringbuffer_t* queue = jack_ringbuffer_create(kQueueBytes);
  std::counting_semaphore<> arrived{0};
};

int receive(jack_nframes_t frames, void* argument) {
  auto* recorder = static_cast<Recorder*>(argument);
  void* buffer = jack_port_get_buffer(recorder->input, frames);
  const std::uint32_t count = jack_midi_get_event_count(buffer);
  for (std::uint32_t i = 0; i < count; ++i) {
    jack_midi_event_t event;
    jack_midi_event_get(&event, buffer, i);
    jack_ringbuffer_write(recorder->queue, reinterpret_cast<const char*>(&event.size),
                          sizeof event.size);
    jack_ringbuffer_write(recorder->queue, reinterpret_cast<const char*>(event.buffer), event.size);
    recorder->arrived.release();
  }
  return 0;
}

void print_next(Recorder& recorder) {
  recorder.arrived.acquire();
  std::size_t size = 0;
  jack_ringbuffer_read(recorder.queue, reinterpret_cast<char*>(&size), sizeof size);
  std::vector<unsigned char> bytes(size);
  jack_ringbuffer_read(recorder.queue, reinterpret_cast<char*>(bytes.data()), size);
  for (std::size_t i = 0; i < size; ++i) std::printf(i == 0 ? "%02x" : " %02x", bytes[i]);
  std::printf("\n");
  std::fflush(stdout);
}

}  // namespace

int main() {
  jack_client_t* client = jack_client_open("recorder", JackNoStartServer, nullptr);
  if (!client) return 1;
  Recorder recorder;
  recorder.input = jack_port_register(client, "input", JACK_DEFAULT_MIDI_TYPE, JackPortIsInput, 0);
  jack_set_process_callback(client, receive, &recorder);
  jack_activate(client);
  while (true) print_next(recorder);
}
