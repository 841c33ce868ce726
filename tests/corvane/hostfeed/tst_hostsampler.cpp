#include "hostsampler.h"
#include "testcase.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <unistd.h>

using namespace corvane;

namespace {

constexpr qint64 second = 1000000000;

enum Kind {
    Cpu,
    Memory,
    Network,
    Disks,
    Temperatures,
    Processes,
    Load,
    Kernel
};

/** A machine made of files. */
class MadeUpHost
{
public:
    void write(const QString &path, const QByteArray &text)
    {
        const QString name = folder.filePath(path);
        QDir().mkpath(QFileInfo(name).path());
        QFile file(name);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write %s", qPrintable(name));
    }

    void remove(const QString &path)
    {
        const QString name = folder.filePath(path);
        if (QFileInfo(name).isDir())
            QDir(name).removeRecursively();
        else
            QFile::remove(name);
    }

    void writeProcess(int pid, const QByteArray &name, int ticks, int pages, int start = 100)
    {
        const QString path = QStringLiteral("proc/%1/").arg(pid);
        const QByteArray number = QByteArray::number(pid);
        write(path + "stat", number + " (" + name + ") S 1 1 1 0 -1 0 1 2 3 4 "
                                 + QByteArray::number(ticks) + " 0 7 8 20 0 2 0 "
                                 + QByteArray::number(start) + " 1000 " + QByteArray::number(pages)
                                 + " 1\n");
        write(path + "cmdline", QByteArray("/bin/x\0-v", 9));
    }

    HostSampler makeSampler() const
    {
        return HostSampler(folder.filePath("proc").toLocal8Bit(),
                           folder.filePath("sys").toLocal8Bit());
    }

private:
    QTemporaryDir folder;
};

QList<quint32> pids(const host::Processes &processes)
{
    QList<quint32> result;
    for (const host::Process &process : processes.busiest())
        result.append(process.pid());
    return result;
}

} // namespace

class TestHostSampler : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sample_ofNothing_isOneMessageOfEachKind();
    void cpu_loadIsADifference();
    void cpu_counterStepsBack();
    void cpu_coresComeAndGo();
    void memory();
    void network();
    void network_counterStepsBack();
    void disks();
    void disks_busyIsAtMostAll();
    void temperatures_comeAndGo();
    void processes_busiestFirst();
    void processes_atMostTwenty();
    void processes_vanish();
    void processes_reusedNumberIsAnotherProcess();
    void processes_withoutCommandLine();
    void processes_oddFolders();
    void load();
    void kernel();
    void thisMachine();
};

void TestHostSampler::sample_ofNothing_isOneMessageOfEachKind()
{
    const MadeUpHost host;
    HostSampler sampler = host.makeSampler();
    for (const qint64 now : {0 * second, 1 * second}) {
        const auto round = sampler.sample(now);
        QCOMPARE(round.size(), size_t(8));
        QVERIFY(round[Cpu].has_cpu());
        QVERIFY(!round[Cpu].cpu().has_total());
        QVERIFY(!round[Memory].memory().has_total_bytes());
        QVERIFY(round[Network].has_network());
        QVERIFY(round[Disks].has_disks());
        QCOMPARE(round[Temperatures].temperatures().sensors_size(), 0);
        QCOMPARE(round[Processes].processes().total(), 0);
        QVERIFY(round[Load].has_load());
        QVERIFY(!round[Load].load().has_one_minute());
        QVERIFY(round[Kernel].has_kernel());
        QVERIFY(!round[Kernel].kernel().has_uptime_seconds());
        QVERIFY(!round[Kernel].kernel().has_context_switch_rate());
    }
}

void TestHostSampler::cpu_loadIsADifference()
{
    MadeUpHost host;
    host.write("proc/stat", "cpu 100 0 0 100 0 0 0 0\ncpu0 100 0 0 100 0 0 0 0\n");
    host.write("sys/devices/system/cpu/cpu0/cpufreq/scaling_cur_freq", "1500000\n");
    HostSampler sampler = host.makeSampler();
    const auto first = sampler.sample(0);
    QVERIFY(!first[Cpu].cpu().has_total());
    QVERIFY(!first[Cpu].cpu().cores(0).has_load());
    QCOMPARE(first[Cpu].cpu().cores(0).frequency_mhz(), 1500.0);

    host.write("proc/stat", "cpu 110 20 5 140 10 3 2 10\ncpu0 100 0 0 200 0 0 0 0\n");
    host.remove("sys");
    const auto cpu = sampler.sample(second)[Cpu].cpu();
    QCOMPARE(cpu.total().user_percent(), 10.0);
    QCOMPARE(cpu.total().nice_percent(), 20.0);
    QCOMPARE(cpu.total().system_percent(), 10.0);
    QCOMPARE(cpu.total().wait_percent(), 10.0);
    QCOMPARE(cpu.total().steal_percent(), 10.0);
    QCOMPARE(cpu.total().busy_percent(), 50.0);
    QCOMPARE(cpu.cores(0).load().busy_percent(), 0.0);
    QVERIFY(!cpu.cores(0).has_frequency_mhz());
}

void TestHostSampler::cpu_counterStepsBack()
{
    MadeUpHost host;
    host.write("proc/stat", "cpu 100 0 0 100 50 0 0 0\ncpu0 100 0 0 100 0 0 0 0\n");
    HostSampler sampler = host.makeSampler();
    sampler.sample(0);
    host.write("proc/stat", "cpu 110 0 0 110 40 0 0 0\ncpu0 0 0 0 0 0 0 0 0\n");
    const auto cpu = sampler.sample(second)[Cpu].cpu();
    QCOMPARE(cpu.total().busy_percent(), 50.0);
    QCOMPARE(cpu.total().wait_percent(), 0.0);
    QVERIFY(!cpu.cores(0).load().has_busy_percent());
}

void TestHostSampler::cpu_coresComeAndGo()
{
    MadeUpHost host;
    host.write("proc/stat", "cpu 1 0 0 1\ncpu0 1 0 0 1\ncpu1 1 0 0 1\n");
    HostSampler sampler = host.makeSampler();
    sampler.sample(0);
    host.write("proc/stat", "cpu 2 0 0 2\ncpu1 2 0 0 1\ncpu2 1 0 0 1\n");
    const auto cpu = sampler.sample(second)[Cpu].cpu();
    QCOMPARE(cpu.cores_size(), 2);
    QCOMPARE(cpu.cores(0).number(), 1);
    QCOMPARE(cpu.cores(0).load().busy_percent(), 100.0);
    QCOMPARE(cpu.cores(1).number(), 2);
    QVERIFY(!cpu.cores(1).has_load());
}

void TestHostSampler::memory()
{
    MadeUpHost host;
    host.write("proc/meminfo", "MemTotal: 100 kB\nMemAvailable: 40 kB\nSwapTotal: 0 kB\n"
                               "Mapped: 5 kB\nHugePages_Free: 0\n");
    const auto memory = host.makeSampler().sample(0)[Memory].memory();
    QCOMPARE(memory.total_bytes(), 102400);
    QCOMPARE(memory.available_bytes(), 40960);
    QVERIFY(memory.has_swap_total_bytes());
    QVERIFY(!memory.has_free_bytes());
    QCOMPARE(memory.others().size(), size_t(1));
    QCOMPARE(memory.others().at("Mapped"), 5120);
}

void TestHostSampler::network()
{
    MadeUpHost host;
    host.write("proc/net/dev", "eth0: 1000 2 3 4 0 0 0 0 500 6 7 8 0 0 0 0\n");
    host.write("sys/class/net/eth0/operstate", "up\n");
    host.write("sys/class/net/eth0/speed", "1000\n");
    host.write("sys/class/net/eth0/mtu", "1500\n");
    host.write("sys/class/net/eth0/address", "02:00:00:00:00:01\n");
    HostSampler sampler = host.makeSampler();
    const auto first = sampler.sample(0)[Network].network();
    QCOMPARE(first.interfaces(0).name(), "eth0");
    QCOMPARE(first.interfaces(0).state(), host::LINK_UP);
    QCOMPARE(first.interfaces(0).speed_mbits(), 1000);
    QCOMPARE(first.interfaces(0).mtu_bytes(), 1500);
    QCOMPARE(first.interfaces(0).hardware_address(), "02:00:00:00:00:01");
    QCOMPARE(first.interfaces(0).sent().dropped(), 8);
    QVERIFY(!first.interfaces(0).has_receive_rate());

    host.write("proc/net/dev", "eth0: 3000 2 3 4 0 0 0 0 500 6 7 8 0 0 0 0\n"
                               "tun0: 1 2 3 4 0 0 0 0 5 6 7 8 0 0 0 0\n");
    host.write("sys/class/net/eth0/speed", "-1\n");
    host.write("sys/class/net/eth0/operstate", "puzzled\n");
    const auto next = sampler.sample(2 * second)[Network].network();
    QCOMPARE(next.interfaces(0).receive_rate(), 1000.0);
    QVERIFY(next.interfaces(0).has_send_rate());
    QCOMPARE(next.interfaces(0).send_rate(), 0.0);
    QCOMPARE(next.interfaces(0).state(), host::LINK_UNKNOWN);
    QVERIFY(!next.interfaces(0).has_speed_mbits());
    QCOMPARE(next.interfaces(1).name(), "tun0");
    QVERIFY(!next.interfaces(1).has_receive_rate());
    QVERIFY(!next.interfaces(1).has_state());
    QVERIFY(!next.interfaces(1).has_hardware_address());
}

void TestHostSampler::network_counterStepsBack()
{
    MadeUpHost host;
    host.write("proc/net/dev", "eth0: 4294967290 2 3 4 0 0 0 0 5 6 7 8 0 0 0 0\n");
    HostSampler sampler = host.makeSampler();
    sampler.sample(0);
    host.write("proc/net/dev", "eth0: 10 2 3 4 0 0 0 0 6 6 7 8 0 0 0 0\n");
    const auto network = sampler.sample(second)[Network].network();
    QVERIFY(!network.interfaces(0).has_receive_rate());
    QCOMPARE(network.interfaces(0).send_rate(), 1.0);
    QCOMPARE(network.interfaces(0).received().bytes(), 10);
}

void TestHostSampler::disks()
{
    MadeUpHost host;
    host.write("proc/diskstats", "8 0 sda 1 0 10 0 1 0 20 0 3 100 0\n"
                                 "8 1 sda1 1 0 10 0 1 0 20 0 3 100 0\n"
                                 "7 0 loop0 0 0 0 0 0 0 0 0 0 0 0\n"
                                 "72 0 cciss/c0d0 1 0 10 0 1 0 20 0 0 100 0\n");
    host.write("sys/block/sda/size", "2000\n");
    host.write("sys/block/sda/queue/rotational", "0\n");
    host.write("sys/block/sda/device/model", "Fast Disk   \n");
    host.write("sys/block/loop0/size", "0\n");
    host.write("sys/block/cciss!c0d0/size", "16\n");
    HostSampler sampler = host.makeSampler();
    const auto first = sampler.sample(0)[Disks].disks();
    QCOMPARE(first.disks_size(), 2);
    QCOMPARE(first.disks(0).name(), "sda");
    QCOMPARE(first.disks(0).model(), "Fast Disk");
    QCOMPARE(first.disks(0).size_bytes(), 1024000);
    QVERIFY(first.disks(0).has_rotational());
    QVERIFY(!first.disks(0).rotational());
    QCOMPARE(first.disks(0).requests_in_progress(), 3);
    QVERIFY(!first.disks(0).has_read_rate());
    QCOMPARE(first.disks(1).name(), "cciss/c0d0");
    QCOMPARE(first.disks(1).size_bytes(), 8192);
    QVERIFY(!first.disks(1).has_model());

    host.write("proc/diskstats", "8 0 sda 1 0 12 0 1 0 10 0 0 350 0\n");
    const auto next = sampler.sample(second)[Disks].disks();
    QCOMPARE(next.disks(0).read_rate(), 1024.0);
    QVERIFY(!next.disks(0).has_write_rate());
    QCOMPARE(next.disks(0).busy_percent(), 25.0);
}

void TestHostSampler::disks_busyIsAtMostAll()
{
    MadeUpHost host;
    host.write("proc/diskstats", "8 0 sda 1 0 10 0 1 0 20 0 3 100 0\n");
    HostSampler sampler = host.makeSampler();
    sampler.sample(0);
    host.write("proc/diskstats", "8 0 sda 1 0 10 0 1 0 20 0 3 1103 0\n");
    QCOMPARE(sampler.sample(second)[Disks].disks().disks(0).busy_percent(), 100.0);
}

void TestHostSampler::temperatures_comeAndGo()
{
    MadeUpHost host;
    host.write("sys/class/hwmon/hwmon10/name", "second\n");
    host.write("sys/class/hwmon/hwmon10/temp1_input", "-5500\n");
    host.write("sys/class/hwmon/hwmon2/name", "coretemp\n");
    host.write("sys/class/hwmon/hwmon2/temp1_input", "45000\n");
    host.write("sys/class/hwmon/hwmon2/temp1_label", "Package\n");
    host.write("sys/class/hwmon/hwmon2/temp1_max", "80000\n");
    host.write("sys/class/hwmon/hwmon2/temp1_crit", "100000\n");
    host.write("sys/class/hwmon/hwmon2/fan1_input", "900\n");
    host.write("sys/class/thermal/thermal_zone0/type", "acpitz\n");
    host.write("sys/class/thermal/thermal_zone0/temp", "0\n");
    host.write("sys/class/thermal/cooling_device0/type", "Fan\n");
    HostSampler sampler = host.makeSampler();
    const auto first = sampler.sample(0)[Temperatures].temperatures();
    QCOMPARE(first.sensors_size(), 3);
    QCOMPARE(first.sensors(0).chip(), "coretemp");
    QCOMPARE(first.sensors(0).label(), "Package");
    QCOMPARE(first.sensors(0).celsius(), 45.0);
    QCOMPARE(first.sensors(0).high_celsius(), 80.0);
    QCOMPARE(first.sensors(0).critical_celsius(), 100.0);
    QCOMPARE(first.sensors(1).label(), "temp1");
    QCOMPARE(first.sensors(1).celsius(), -5.5);
    QVERIFY(!first.sensors(1).has_high_celsius());
    QCOMPARE(first.sensors(2).label(), "acpitz");
    QVERIFY(first.sensors(2).has_celsius());

    host.write("sys/class/hwmon/hwmon2/temp1_input", "");
    host.remove("sys/class/thermal/thermal_zone0/temp");
    host.remove("sys/class/hwmon/hwmon10");
    const auto next = sampler.sample(second)[Temperatures].temperatures();
    QCOMPARE(next.sensors_size(), 2);
    QVERIFY(!next.sensors(0).has_celsius());
    QVERIFY(next.sensors(0).has_high_celsius());
    QVERIFY(!next.sensors(1).has_celsius());
}

void TestHostSampler::processes_busiestFirst()
{
    const auto ticks = static_cast<int>(::sysconf(_SC_CLK_TCK));
    MadeUpHost host;
    host.write("proc/uptime", "10.00 5.00\n");
    for (int pid = 1; pid <= 8; ++pid)
        host.writeProcess(pid, "p", 0, 10 * pid);
    HostSampler sampler = host.makeSampler();
    const auto first = sampler.sample(0)[Processes].processes();
    QCOMPARE(pids(first), QList<quint32>({8, 7, 6, 5, 4}));
    QVERIFY(!first.busiest(0).has_cpu_percent());
    QCOMPARE(first.total(), 8);
    QCOMPARE(first.threads(), 16);
    QCOMPARE(first.states_size(), 1);
    QCOMPARE(first.states(0).state(), host::STATE_SLEEPING);
    QCOMPARE(first.states(0).count(), 8);

    host.writeProcess(2, "(odd) name", 3 * ticks, 20);
    host.writeProcess(3, "p", ticks, 30);
    host.writeProcess(9, "new", 2 * ticks, 1, 9 * ticks);
    const auto next = sampler.sample(2 * second)[Processes].processes();
    QCOMPARE(pids(next), QList<quint32>({2, 9, 3, 8, 7}));
    QCOMPARE(next.busiest(0).name(), "(odd) name");
    QCOMPARE(next.busiest(0).cpu_percent(), 150.0);
    QCOMPARE(next.busiest(0).cpu_seconds(), 3.0);
    QCOMPARE(next.busiest(0).command_line(), "/bin/x -v");
    QCOMPARE(next.busiest(0).parent_pid(), 1);
    QCOMPARE(next.busiest(0).resident_bytes(), 20 * ::sysconf(_SC_PAGESIZE));
    QCOMPARE(next.busiest(1).cpu_percent(), 100.0);
    QCOMPARE(next.busiest(1).age_seconds(), 1.0);
    QCOMPARE(next.busiest(3).cpu_percent(), 0.0);
}

void TestHostSampler::processes_atMostTwenty()
{
    MadeUpHost host;
    HostSampler sampler = host.makeSampler();
    for (int pid = 1; pid <= 30; ++pid)
        host.writeProcess(pid, "p", 0, 1);
    sampler.sample(0);
    for (int pid = 1; pid <= 30; ++pid)
        host.writeProcess(pid, "p", pid, 1);
    const auto processes = sampler.sample(second)[Processes].processes();
    QCOMPARE(processes.busiest_size(), 20);
    QCOMPARE(processes.busiest(0).pid(), 30);
    QCOMPARE(processes.total(), 30);
}

void TestHostSampler::processes_vanish()
{
    MadeUpHost host;
    host.writeProcess(1, "a", 1, 1);
    host.writeProcess(2, "b", 1, 1);
    HostSampler sampler = host.makeSampler();
    sampler.sample(0);
    host.remove("proc/2/stat");
    QCOMPARE(pids(sampler.sample(second)[Processes].processes()), QList<quint32>({1}));
    host.remove("proc/1");
    QCOMPARE(sampler.sample(2 * second)[Processes].processes().total(), 0);
}

void TestHostSampler::processes_reusedNumberIsAnotherProcess()
{
    const auto ticks = static_cast<int>(::sysconf(_SC_CLK_TCK));
    MadeUpHost host;
    host.writeProcess(1, "old", 5 * ticks, 1, 100);
    HostSampler sampler = host.makeSampler();
    sampler.sample(0);
    host.writeProcess(1, "new", 6 * ticks, 1, 200);
    const auto processes = sampler.sample(10 * second)[Processes].processes();
    QCOMPARE(processes.busiest(0).cpu_percent(), 60.0);
}

void TestHostSampler::processes_withoutCommandLine()
{
    MadeUpHost host;
    host.writeProcess(1, "ended", 1, 1);
    host.remove("proc/1/cmdline");
    host.writeProcess(2, "kthreadd", 1, 1);
    host.write("proc/2/cmdline", "");
    const auto processes = host.makeSampler().sample(0)[Processes].processes();
    QCOMPARE(processes.busiest_size(), 2);
    QVERIFY(!processes.busiest(0).has_command_line());
    QVERIFY(!processes.busiest(1).has_command_line());
    QVERIFY(!processes.busiest(0).has_age_seconds());
}

void TestHostSampler::processes_oddFolders()
{
    MadeUpHost host;
    host.write("proc/sys/stat", "1 (no) S 1 1\n");
    host.write("proc/7/stat", "cut (sh");
    host.write("proc/8/other", "");
    host.write("proc/9", "a file");
    QCOMPARE(host.makeSampler().sample(0)[Processes].processes().total(), 0);
}

void TestHostSampler::load()
{
    MadeUpHost host;
    host.write("proc/loadavg", "0.00 1.25 2.00 3/456 7890\n");
    const auto load = host.makeSampler().sample(0)[Load].load();
    QVERIFY(load.has_one_minute());
    QCOMPARE(load.one_minute(), 0.0);
    QCOMPARE(load.five_minutes(), 1.25);
    QCOMPARE(load.fifteen_minutes(), 2.0);
    QCOMPARE(load.runnable(), 3);
    QCOMPARE(load.threads(), 456);
}

void TestHostSampler::kernel()
{
    MadeUpHost host;
    host.write("proc/sys/kernel/ostype", "Linux\n");
    host.write("proc/sys/kernel/osrelease", "6.1.0\n");
    host.write("proc/sys/kernel/hostname", "vm\xff\n");
    host.write("proc/uptime", "10.50 5.00\n");
    host.write("proc/stat", "ctxt 100\nintr 50 1 2\nprocesses 7\n");
    HostSampler sampler = host.makeSampler();
    const auto first = sampler.sample(0)[Kernel].kernel();
    QCOMPARE(first.system(), "Linux");
    QCOMPARE(first.release(), "6.1.0");
    QCOMPARE(first.host_name(), "vm\xef\xbf\xbd");
    QVERIFY(!first.has_version());
    QCOMPARE(first.uptime_seconds(), 10.5);
    QVERIFY(!first.has_context_switch_rate());

    host.write("proc/stat", "ctxt 300\nintr 40\nprocesses 7\n");
    const auto next = sampler.sample(2 * second)[Kernel].kernel();
    QCOMPARE(next.context_switch_rate(), 100.0);
    QVERIFY(!next.has_interrupt_rate());
    QVERIFY(next.has_fork_rate());
    QCOMPARE(next.fork_rate(), 0.0);
}

void TestHostSampler::thisMachine()
{
    HostSampler sampler;
    sampler.sample(0);
    const auto round = sampler.sample(second);
    QVERIFY(round[Cpu].cpu().cores_size() > 0);
    QVERIFY(round[Memory].memory().total_bytes() > round[Memory].memory().free_bytes());
    QVERIFY(round[Processes].processes().total() > 0);
    QVERIFY(round[Processes].processes().busiest_size() > 0);
    QVERIFY(round[Kernel].kernel().uptime_seconds() > 0.0);
}

CORVANE_TEST_MAIN(TestHostSampler)
#include "tst_hostsampler.moc"
