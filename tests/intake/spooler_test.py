"""What the program asks the scheduler for, answered by one that is played here."""
import http.server
import struct
import threading
import time

from intake_run import printed, sizes
import test_documents


def attribute(tag, name, value):
    return struct.pack('>BH', tag, len(name)) + name + struct.pack('>H', len(value)) + value


def dimension(name, value):
    return attribute(0x4a, b'', name) + attribute(0x21, b'', struct.pack('>i', value))


def media_col(members):
    return attribute(0x34, b'media-col', b'') + members + attribute(0x37, b'', b'')


def of_size(width, height):
    return media_col(attribute(0x4a, b'', b'media-size') + attribute(0x34, b'', b'') +
                     dimension(b'x-dimension', width) + dimension(b'y-dimension', height) +
                     attribute(0x37, b'', b''))


def of_name(name):
    return media_col(attribute(0x4a, b'', b'media-size-name') + attribute(0x44, b'', name))


class Scheduler(http.server.BaseHTTPRequestHandler):
    protocol_version = 'HTTP/1.1'

    def read_body(self):
        if self.headers.get('Transfer-Encoding') != 'chunked':
            return self.rfile.read(int(self.headers.get('Content-Length', 0)))
        body = b''
        while size := int(self.rfile.readline(), 16):
            body += self.rfile.read(size)
            self.rfile.readline()
        self.rfile.readline()
        return body

    def do_POST(self):
        self.server.asked.append(self.read_body())
        time.sleep(self.server.delay)
        answer = (struct.pack('>BBHIB', 2, 0, 0, 1, 1) +
                  attribute(0x47, b'attributes-charset', b'utf-8') +
                  attribute(0x48, b'attributes-natural-language', b'en') +
                  b'\x02' + self.server.answer + b'\x03')
        try:
            self.send_response(self.server.status)
            self.send_header('Content-Type', 'application/ipp')
            self.send_header('Content-Length', str(len(answer)))
            self.end_headers()
            self.wfile.write(answer)
        except OSError:
            pass

    def log_message(self, *_):
        pass


class Played:
    """A scheduler with one answer to everything."""

    def __init__(self, answer, status=200, delay=0):
        self.server = http.server.ThreadingHTTPServer(('127.0.0.1', 0), Scheduler)
        self.server.answer, self.server.status, self.server.delay = answer, status, delay
        self.server.asked = []

    def __enter__(self):
        threading.Thread(target=self.server.serve_forever, daemon=True).start()
        return self

    def __exit__(self, *_):
        self.server.shutdown()
        self.server.server_close()

    def label(self, options):
        """(dots, what is said) of a job that can ask this scheduler."""
        done = printed(test_documents.PDF, options,
                       variables={'CUPS_SERVER': f'127.0.0.1:{self.server.server_port}'})
        return sizes(done.stream)[0][:2], done.labels_said()


def whole_points_are_asked_about():
    with Played(of_size(7300, 4100)) as scheduler:
        assert scheduler.label('media=Custom.206x116 PageSize=Custom.206x116') == ((584, 328), [])
        [request] = scheduler.server.asked
        assert struct.unpack('>H', request[2:4]) == (9,), 'Get-Job-Attributes'
        assert b'/jobs/1' in request and b'media-col' in request, request


def a_size_that_did_not_come_is_asked_for():
    with Played(of_size(3000, 5000)) as scheduler:
        said = ['The label is 50 x 30 mm, turned; 30 x 50 mm was asked for']
        assert scheduler.label('') == ((400, 240), said)
    with Played(of_size(21000, 29700)) as scheduler:
        dots, [said] = scheduler.label('')
        assert dots == (808, 1218) and '210 x 297 mm was asked for' in said, said
    with Played(of_name(b'om_60x40mm_60x40mm')) as scheduler:
        assert scheduler.label('') == ((480, 320), [])


def nothing_is_asked_when_the_options_say_it_all():
    with Played(of_size(7300, 4100)) as scheduler:
        assert scheduler.label('media=60x40mm') == ((480, 320), [])
        assert scheduler.label('PageSize=Custom.60x40mm') == ((480, 320), [])
        assert not scheduler.server.asked


def a_scheduler_that_does_not_help_is_done_without():
    default = (808, 1218), []
    for answer, status in ((b'', 200), (of_size(0, -5), 200), (of_size(7300, 4100), 500),
                           (of_size(7300, 4100), 401), (of_size(7300, 4100), 403),
                           (b'\xff\xff\xff', 200), (media_col(b''), 200),
                           (of_name(b'nonsense'), 200)):
        with Played(answer, status) as scheduler:
            assert scheduler.label('') == default, (answer, status)
    done = printed(test_documents.PDF, variables={'CUPS_SERVER': '/nonexistent/cups.sock'})
    assert sizes(done.stream) == [(808, 1218, 1)]


def a_scheduler_that_does_not_answer_is_not_waited_for():
    with Played(of_size(7300, 4100), delay=8) as scheduler:
        start = time.monotonic()
        assert scheduler.label('') == ((808, 1218), [])
        assert time.monotonic() - start < 6
