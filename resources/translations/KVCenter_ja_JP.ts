<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>CommandSession</name>
    <message>
        <source>The device does not answer. Check the baud rate, then identify it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device refused %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings were sent and the device has restarted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(no reply)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SensorDashboardBridge</name>
    <message>
        <source>Acceleration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angular Velocity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magnetic Field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Euler Angles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quaternion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SensorDataPanel</name>
    <message>
        <source>Acceleration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angular rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magnetic field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quaternion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ToolADI</name>
    <message>
        <source>N</source>
        <comment>north</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E</source>
        <comment>east</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S</source>
        <comment>south</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>W</source>
        <comment>west</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attitude indicator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No attitude</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WaveChartBridge</name>
    <message>
        <source>Acceleration (G)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angular Velocity (°/s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magnetic Field (μT)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Euler Angles (°)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quaternion (Norm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pressure (Pa)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>form_about</name>
    <message>
        <source>About ORVEL-IMU</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KVCenter shows the data of inertial measurement units on a serial line and sets the units up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toolkit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings and logs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder of settings and logs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qt %1 (licence: GNU LGPL, version 3)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>form_base</name>
    <message>
        <source>No device connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open port...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No hardware at hand? The simulator kv_simulator behaves like a device and prints the path of the port to open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Build</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UUID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mounting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the device is mounted; remembered for each product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RFU / ENU (3-1-2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FLU / NWU (Z-Y-X)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The node whose values are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attitude</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Serial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Font size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open port...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+W</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Spectrum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;3D view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy all values of the selected node to the clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Small</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Medium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Big</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Record...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Device settings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identify and configure the device (Ctrl+E)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Firmware update...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unconnected...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yaw</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sensor Dashboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waveforms come with a later version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wireless Gateway Dashboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The dashboard of radio nodes comes with a later version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The spectrum comes with a later version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The 3D view comes with a later version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording comes with a later version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The firmware update comes with a later version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other languages come with a later version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a serial port and connect (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the serial port (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plug in a module or a gateway, press &lt;b&gt;Open port&lt;/b&gt; (%1) and choose its serial port.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 cannot be written: settings and logs of this run are not kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected... %1, %2 baud</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Serial Port Error.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Node ID:%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>form_com_select</name>
    <message>
        <source>Open serial port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Serial ports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial ports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No serial port found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plug the device in: it appears here by itself.

To try the program without a device, start the simulator in a terminal with ./run or kv_simulator. It prints a path: type that below.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Port or path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A port of the list, or a path typed by hand: a pseudo-terminal or a link to a device file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Baud rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bits per second, as set in the device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a port or type its path.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not there at the moment. Plug the device in, or choose another port.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a serial port.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>form_settings</name>
    <message>
        <source>Device settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Identify</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Build</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Module</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Node ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of the module in a radio network, 0 to 255</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output &amp;rate (Hz)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Attitude mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0: 6-axis, without magnetometer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1: 9-axis, with magnetometer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which settings can be changed depends on the device. Connect it and identify it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save to device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ommands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sent and received</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing sent yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save config</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log COM config</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log user config</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log disable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reboot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No device identified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving does not change the rate of this device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is connected: open a serial port first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the device: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identify the device first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a node ID first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose an output rate first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sends %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stops the output, reads what the device is and resumes the output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes these settings and restarts the device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving restarts the device; this takes 2 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>port_choice</name>
    <message>
        <source>Enter a baud rate.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a whole number, such as %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too low: the lowest rate is %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too high: the highest rate is %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>serial_error_text</name>
    <message>
        <source>You are not allowed to open %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask the administrator of this computer for access.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run &quot;%1&quot; in a terminal, then log out and in again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection to %1 was lost: the device was unplugged or switched off. Check the cable, then open the port again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not there. Check the cable and that the device is switched on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program uses %1. Close it and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is open already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a serial port, or it does not support %2 baud. Choose another port or baud rate.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be used (error %2). Unplug the device, plug it in again and retry.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>status_text</name>
    <message>
        <source>Unconnected...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Using fallback product profile.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product info deferred during live stream.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product info pending...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Single node (0x%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gateway (0x%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected.
No frame stream detected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Building connection...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[Serial]
%1 %2
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protocol:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FrameRate:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wireless</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DONGLE ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL OF NODE</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
