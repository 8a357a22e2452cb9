<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>ActionButton</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>AlarmPanel</name>
    <message>
        <source>Alarm</source>
        <translation>报警</translation>
    </message>
    <message>
        <source>Judge the spectra by this preset</source>
        <translation>按此预设判断频谱</translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation>自定义…</translation>
    </message>
    <message>
        <source>Set thresholds and frequencies yourself</source>
        <translation>自行设置阈值和频率</translation>
    </message>
</context>
<context>
    <name>AlarmRuleEditor</name>
    <message>
        <source>From</source>
        <translation>频率下限</translation>
    </message>
    <message>
        <source>To (0: no limit)</source>
        <translation>频率上限（0：不限）</translation>
    </message>
    <message>
        <source>Watch from</source>
        <translation>注意阈值</translation>
    </message>
    <message>
        <source>Alarm from</source>
        <translation>报警阈值</translation>
    </message>
    <message>
        <source>Spectra to raise</source>
        <translation>触发所需帧数</translation>
    </message>
    <message>
        <source>Spectra to clear</source>
        <translation>解除所需帧数</translation>
    </message>
    <message>
        <source>Use this rule</source>
        <translation>使用此规则</translation>
    </message>
</context>
<context>
    <name>AppearanceMenu</name>
    <message>
        <source>&amp;System</source>
        <translation>跟随系统(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>浅色(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>深色(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>外观(&amp;A)</translation>
    </message>
</context>
<context>
    <name>AttitudeCard</name>
    <message>
        <source>Attitude</source>
        <translation>姿态</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>横滚</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>俯仰</translation>
    </message>
    <message>
        <source>Yaw</source>
        <translation>航向</translation>
    </message>
</context>
<context>
    <name>AttitudeFigures</name>
    <message>
        <source>Live</source>
        <translation>实时</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>横滚</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>俯仰</translation>
    </message>
    <message>
        <source>Yaw</source>
        <translation>航向</translation>
    </message>
    <message>
        <source>Quaternion</source>
        <translation>四元数</translation>
    </message>
    <message>
        <source>Delta</source>
        <translation>相对基准</translation>
    </message>
</context>
<context>
    <name>BandEditor</name>
    <message>
        <source>Name of the band</source>
        <translation>频带名称</translation>
    </message>
    <message>
        <source>Lower edge</source>
        <translation>频带下限</translation>
    </message>
    <message>
        <source>Upper edge</source>
        <translation>频带上限</translation>
    </message>
    <message>
        <source>Measure this band</source>
        <translation>测量此频带</translation>
    </message>
</context>
<context>
    <name>BandPanel</name>
    <message>
        <source>Peak and bands</source>
        <translation>峰值与频带</translation>
    </message>
    <message>
        <source>Back to the automatic bands</source>
        <translation>恢复自动频带</translation>
    </message>
    <message>
        <source>Add band…</source>
        <translation>添加频带…</translation>
    </message>
    <message>
        <source>Measure the power of a band of your own</source>
        <translation>测量自定义频带的功率</translation>
    </message>
    <message>
        <source>Peak: %1 Hz on %2, %3 %4</source>
        <translation>主峰：%1 Hz（%2），%3 %4</translation>
    </message>
    <message>
        <source>%1, %2–%3 Hz</source>
        <translation>%1，%2–%3 Hz</translation>
    </message>
    <message>
        <source>Coherence of the axes</source>
        <translation>轴间相干性</translation>
    </message>
    <message>
        <source>How alike the spectra of two axes are in shape, from 0 to 1</source>
        <translation>两轴频谱形状的相似程度，范围 0 到 1</translation>
    </message>
</context>
<context>
    <name>BodyModel</name>
    <message>
        <source>The model cannot be shown.</source>
        <translation>无法显示此模型。</translation>
    </message>
</context>
<context>
    <name>CaptureActions</name>
    <message>
        <source>Stop &amp;capture</source>
        <translation>停止捕获(&amp;C)</translation>
    </message>
    <message>
        <source>Start &amp;capture</source>
        <translation>开始捕获(&amp;C)</translation>
    </message>
    <message>
        <source>Captures every byte, sample and event into one file</source>
        <translation>将每个字节、采样和事件捕获到一个文件中</translation>
    </message>
    <message>
        <source>Capturing</source>
        <translation>正在捕获</translation>
    </message>
    <message>
        <source>Captured into %1</source>
        <translation>已捕获到 %1</translation>
    </message>
</context>
<context>
    <name>CaptureBadge</name>
    <message>
        <source>Capture %1</source>
        <translation>正在捕获 %1</translation>
    </message>
    <message>
        <source>Capture: problem</source>
        <translation>捕获出现问题</translation>
    </message>
</context>
<context>
    <name>CaptureFault</name>
    <message>
        <source>The capture %1 cannot be opened: %2</source>
        <translation>无法打开捕获文件 %1：%2</translation>
    </message>
    <message>
        <source>%1 is not a capture: it does not begin like an MCAP file.</source>
        <translation>%1 不是捕获文件：其开头不符合 MCAP 文件格式。</translation>
    </message>
    <message>
        <source>Nothing in the capture %1 can be read: it is empty or damaged.</source>
        <translation>捕获文件 %1 中没有可读取的内容：文件为空或已损坏。</translation>
    </message>
    <message>
        <source>%1 holds no received bytes that could be played back. Another program may have written it.</source>
        <translation>%1 中没有可回放的接收字节。该文件可能由其他程序写入。</translation>
    </message>
    <message>
        <source>The capture %1 cannot be created: %2</source>
        <translation>无法创建捕获文件 %1：%2</translation>
    </message>
    <message>
        <source>The capture %1 has ended: %2. What was written before is complete.</source>
        <translation>捕获 %1 已结束：%2。此前写入的内容完整。</translation>
    </message>
    <message>
        <source>The capture %1 has ended: the file was deleted or moved.</source>
        <translation>捕获 %1 已结束：文件已被删除或移动。</translation>
    </message>
    <message>
        <source>The capture %1 is being written at this moment.</source>
        <translation>捕获文件 %1 当前正在写入。</translation>
    </message>
    <message>
        <source>The capture %1 cannot be repaired: its folder is read-only. It has not been changed.</source>
        <translation>无法修复捕获文件 %1：其文件夹为只读。文件未被更改。</translation>
    </message>
    <message>
        <source>The capture %1 cannot be repaired: %2. It has not been changed.</source>
        <translation>无法修复捕获文件 %1：%2。文件未被更改。</translation>
    </message>
</context>
<context>
    <name>CaptureRun</name>
    <message>
        <source>the folder cannot be created</source>
        <translation>无法创建文件夹</translation>
    </message>
</context>
<context>
    <name>CeilingField</name>
    <message>
        <source>now %1</source>
        <translation>当前 %1</translation>
    </message>
</context>
<context>
    <name>ChartBarTools</name>
    <message>
        <source>Save charts</source>
        <translation>保存图表</translation>
    </message>
    <message>
        <source>List of markers; M sets one</source>
        <translation>标记列表；按 M 键添加标记</translation>
    </message>
    <message>
        <source>Let each chart have its own time axis and cursors</source>
        <translation>各图表使用独立的时间轴和光标</translation>
    </message>
    <message>
        <source>Couple time axes and cursors of all charts</source>
        <translation>联动所有图表的时间轴和光标</translation>
    </message>
</context>
<context>
    <name>ChartFilterRow</name>
    <message>
        <source>Low-pass filter</source>
        <translation>低通滤波</translation>
    </message>
    <message>
        <source>Cutoff frequency</source>
        <translation>截止频率</translation>
    </message>
    <message>
        <source>In force: %1 Hz, as the rate is now %2 Hz</source>
        <translation>实际生效：%1 Hz，因当前速率为 %2 Hz</translation>
    </message>
    <message>
        <source>Apply %1 Hz</source>
        <translation>应用 %1 Hz</translation>
    </message>
</context>
<context>
    <name>ChartLegendEntry</name>
    <message>
        <source>Hide %1</source>
        <translation>隐藏 %1</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>显示 %1</translation>
    </message>
</context>
<context>
    <name>ChartMeasures</name>
    <message>
        <source>Between A and B, %1 to %2</source>
        <translation>A 与 B 之间，%1 至 %2</translation>
    </message>
    <message>
        <source>Over the view, %1 to %2</source>
        <translation>可见区间，%1 至 %2</translation>
    </message>
</context>
<context>
    <name>ChartRangeRow</name>
    <message>
        <source>Left end of the horizontal axis</source>
        <translation>横轴左端</translation>
    </message>
    <message>
        <source>Right end of the horizontal axis</source>
        <translation>横轴右端</translation>
    </message>
    <message>
        <source>Lower end of the value axis</source>
        <translation>数值轴下限</translation>
    </message>
    <message>
        <source>Upper end of the value axis</source>
        <translation>数值轴上限</translation>
    </message>
    <message>
        <source>Automatic values</source>
        <translation>数值轴自动</translation>
    </message>
    <message>
        <source>Fit the value axis to what is visible</source>
        <translation>使数值轴适应可见数据</translation>
    </message>
</context>
<context>
    <name>ChartSaver</name>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>逗号分隔值文件 (*.csv)</translation>
    </message>
    <message>
        <source>The picture could not be taken.</source>
        <translation>无法截取图片。</translation>
    </message>
    <message>
        <source>Save a picture of the chart</source>
        <translation>保存图表图片</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>PNG 图片 (*.png)</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>已保存 %1</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>Save the samples</source>
        <translation>保存采样数据</translation>
    </message>
    <message>
        <source>SVG picture (*.svg)</source>
        <translation>SVG 图片 (*.svg)</translation>
    </message>
    <message>
        <source>Save the samples of all charts</source>
        <translation>保存所有图表的采样数据</translation>
    </message>
    <message>
        <source>Save pictures of all charts</source>
        <translation>保存所有图表的图片</translation>
    </message>
    <message>
        <source>No chart has samples.</source>
        <translation>所有图表都没有采样数据。</translation>
    </message>
    <message numerus="yes">
        <source>Saved %n file(s) in %1</source>
        <translation>
            <numerusform>已将 %n 个文件保存到 %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandSession</name>
    <message>
        <source>(no reply)</source>
        <translation>（无应答）</translation>
    </message>
    <message>
        <source>(noise)</source>
        <translation>（噪声）</translation>
    </message>
</context>
<context>
    <name>ConnectionCard</name>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Opens this port at one rate after the other until the device answers</source>
        <translation>依次以各波特率打开此串口，直到设备应答</translation>
    </message>
    <message>
        <source>Try the &amp;usual baud rates</source>
        <translation>尝试常用波特率(&amp;U)</translation>
    </message>
    <message>
        <source>Only noise is arriving. The baud rate may be wrong.</source>
        <translation>仅收到噪声。波特率可能有误。</translation>
    </message>
</context>
<context>
    <name>DashboardWindow</name>
    <message>
        <source>This window could not be loaded. See the log for the reason.</source>
        <translation>无法加载此窗口。原因请见日志。</translation>
    </message>
</context>
<context>
    <name>DeviceCard</name>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>产品</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>构建</translation>
    </message>
    <message>
        <source>UUID</source>
        <translation>UUID</translation>
    </message>
    <message>
        <source>&amp;Mounting</source>
        <translation>安装(&amp;M)</translation>
    </message>
    <message>
        <source>How the device is mounted; remembered for each product</source>
        <translation>设备的安装方向，按产品分别记住</translation>
    </message>
    <message>
        <source>RFU / ENU (3-1-2)</source>
        <translation>RFU / ENU (3-1-2)</translation>
    </message>
    <message>
        <source>FLU / NWU (Z-Y-X)</source>
        <translation>FLU / NWU (Z-Y-X)</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>Open Serial Port Error.</source>
        <translation>打开串口失败。</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>稍后</translation>
    </message>
    <message>
        <source>The device may be waiting in its bootloader for the rest. Plug it in, then connect to it.</source>
        <translation>设备可能正在引导程序中等待其余数据。请接入设备，然后连接。</translation>
    </message>
    <message>
        <source>Connection error.</source>
        <translation>连接错误。</translation>
    </message>
</context>
<context>
    <name>FFTChartView</name>
    <message>
        <source>Waiting for samples</source>
        <translation>正在等待采样数据</translation>
    </message>
    <message>
        <source>No spectrum yet</source>
        <translation>尚无频谱</translation>
    </message>
    <message>
        <source>Press Start above.</source>
        <translation>请点击上方的“开始”。</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>数据质量</translation>
    </message>
    <message>
        <source>The selected node is not sending any at the moment.</source>
        <translation>所选节点当前没有发送采样数据。</translation>
    </message>
</context>
<context>
    <name>FftAlarm</name>
    <message>
        <source>General</source>
        <translation>通用</translation>
    </message>
    <message>
        <source>Industrial</source>
        <translation>工业</translation>
    </message>
    <message>
        <source>Human</source>
        <translation>人体</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>报警</translation>
    </message>
    <message>
        <source>Use cursor A/B to inspect the dominant peak.</source>
        <translation>请用光标 A/B 查看主峰。</translation>
    </message>
    <message>
        <source>Use cursor A/B to compare the dominant peak with nearby harmonics and band changes.</source>
        <translation>请用光标 A/B 将主峰与邻近谐波及频带变化进行对比。</translation>
    </message>
    <message>
        <source>Low-frequency drift zone</source>
        <translation>低频漂移区</translation>
    </message>
    <message>
        <source>Primary motion zone</source>
        <translation>主要运动区</translation>
    </message>
    <message>
        <source>Vibration zone</source>
        <translation>振动区</translation>
    </message>
    <message>
        <source>High-frequency impact zone</source>
        <translation>高频冲击区</translation>
    </message>
    <message>
        <source>Structural / looseness zone</source>
        <translation>结构/松动区</translation>
    </message>
    <message>
        <source>Check mounting bolts, frame looseness, and base stiffness.</source>
        <translation>请检查安装螺栓、机架松动情况和基座刚度。</translation>
    </message>
    <message>
        <source>Rotating equipment zone</source>
        <translation>旋转设备区</translation>
    </message>
    <message>
        <source>Compare with shaft speed and inspect imbalance, misalignment, or coupling issues.</source>
        <translation>请与轴转速对比，检查是否存在不平衡、不对中或联轴器问题。</translation>
    </message>
    <message>
        <source>Bearing / gear zone</source>
        <translation>轴承/齿轮区</translation>
    </message>
    <message>
        <source>Inspect bearings, gears, and resonance paths around the measured axis.</source>
        <translation>请检查测量轴附近的轴承、齿轮和共振传递路径。</translation>
    </message>
    <message>
        <source>Impact / resonance zone</source>
        <translation>冲击/共振区</translation>
    </message>
    <message>
        <source>Check for repeated impacts, chatter, looseness, or hard contact.</source>
        <translation>请检查是否存在反复冲击、颤振、松动或硬接触。</translation>
    </message>
    <message>
        <source>Posture / sway zone</source>
        <translation>姿势/晃动区</translation>
    </message>
    <message>
        <source>Review posture, balance, and slow body sway over a longer window.</source>
        <translation>请在更长的时间窗内观察姿势、平衡和身体的缓慢晃动。</translation>
    </message>
    <message>
        <source>Gait / repetition zone</source>
        <translation>步态/重复动作区</translation>
    </message>
    <message>
        <source>Compare cadence, stride rhythm, and left/right symmetry.</source>
        <translation>请对比步频、步伐节奏和左右对称性。</translation>
    </message>
    <message>
        <source>Tremor / shake zone</source>
        <translation>震颤/抖动区</translation>
    </message>
    <message>
        <source>Observe sustained tremor-like motion and compare different postures or limbs.</source>
        <translation>请观察持续的类震颤动作，并对比不同姿势或肢体。</translation>
    </message>
    <message>
        <source>Impact / abrupt motion zone</source>
        <translation>冲击/突发动作区</translation>
    </message>
    <message>
        <source>Mark abrupt movement, foot strike, or collision-like events and review the raw waveform.</source>
        <translation>请标记突发动作、足部着地或类似碰撞的事件，并查看原始波形。</translation>
    </message>
    <message>
        <source>General zone</source>
        <translation>通用区</translation>
    </message>
    <message>
        <source>No dominant FFT peak is available yet, so the alarm cannot classify the current motion or vibration.</source>
        <translation>尚无 FFT 主峰，报警功能无法对当前的运动或振动进行分类。</translation>
    </message>
    <message>
        <source>Start or resume FFT updates and wait for a stable peak before acting on the alarm.</source>
        <translation>请启动或恢复 FFT 更新，待出现稳定的峰值后再处理报警。</translation>
    </message>
    <message>
        <source>%1 monitoring: waiting for data</source>
        <translation>%1监测：正在等待数据</translation>
    </message>
    <message>
        <source>%1 monitoring: no dominant peak yet.</source>
        <translation>%1监测：尚无主峰。</translation>
    </message>
    <message>
        <source>%1 monitoring: %2 is below the watch level.</source>
        <translation>%1监测：%2 低于注意阈值。</translation>
    </message>
    <message>
        <source>%1 watch: %2 is approaching the alarm threshold.</source>
        <translation>%1注意：%2 正在接近报警阈值。</translation>
    </message>
    <message>
        <source>%1 alarm: %2 persisted above threshold.</source>
        <translation>%1报警：%2 持续高于阈值。</translation>
    </message>
    <message>
        <source>%1 monitoring: dominant peak outside target band</source>
        <translation>%1监测：主峰在目标频带之外</translation>
    </message>
    <message>
        <source>%1 monitoring: %2 is outside the target band.</source>
        <translation>%1监测：%2 在目标频带之外。</translation>
    </message>
    <message>
        <source>The dominant peak %1 is outside the monitored band %2, so this preset stays idle.</source>
        <translation>主峰 %1 在监测频带 %2 之外，此预设保持待机。</translation>
    </message>
    <message>
        <source>If this frequency matters for your use case, switch presets or set a custom alarm rule.</source>
        <translation>如果该频率对您的应用很重要，请切换预设或设置自定义报警规则。</translation>
    </message>
    <message>
        <source>The dominant peak %1 is in the %2 and remains below the watch threshold.</source>
        <translation>主峰 %1 位于%2，仍低于注意阈值。</translation>
    </message>
    <message>
        <source>The dominant peak %1 is in the %2 and is approaching the alarm threshold.</source>
        <translation>主峰 %1 位于%2，正在接近报警阈值。</translation>
    </message>
    <message>
        <source>The dominant peak %1 is in the %2 and stayed above the alarm threshold long enough to be treated as a persistent event.</source>
        <translation>主峰 %1 位于%2，高于报警阈值的时间已足够长，判定为持续事件。</translation>
    </message>
    <message>
        <source>Resultant</source>
        <translation>合成</translation>
    </message>
    <message>
        <source>%1 Hz on %2 (amp %3)</source>
        <translation>%2 · %1 Hz (幅值 %3)</translation>
    </message>
    <message>
        <source>Band %1 | Watch &gt;= %2 | Alarm &gt;= %3 | %4 frame(s)</source>
        <translation>频带 %1 | 注意 &gt;= %2 | 报警 &gt;= %3 | %4 帧</translation>
    </message>
    <message>
        <source>%1-%2 Hz</source>
        <translation>%1-%2 Hz</translation>
    </message>
    <message>
        <source>%1 Hz and above</source>
        <translation>%1 Hz 及以上</translation>
    </message>
    <message>
        <source>All frequencies</source>
        <translation>全部频率</translation>
    </message>
</context>
<context>
    <name>FftBand</name>
    <message>
        <source>Low</source>
        <translation>低频</translation>
    </message>
    <message>
        <source>Mid</source>
        <translation>中频</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高频</translation>
    </message>
</context>
<context>
    <name>FftChartBridge</name>
    <message>
        <source>The band needs a name.</source>
        <translation>请输入频带名称。</translation>
    </message>
    <message>
        <source>The upper edge must be above the lower one.</source>
        <translation>频带上限必须高于下限。</translation>
    </message>
    <message>
        <source>There are %1 bands already.</source>
        <translation>频带已达 %1 个。</translation>
    </message>
    <message>
        <source>Custom rule</source>
        <translation>自定义规则</translation>
    </message>
    <message>
        <source>The upper frequency must be above the lower one, or 0 for no limit.</source>
        <translation>频率上限必须高于下限；0 表示无上限。</translation>
    </message>
    <message>
        <source>The alarm threshold must not be below the watch threshold, and both must be above 0.</source>
        <translation>报警阈值不得低于注意阈值，且两者均须大于 0。</translation>
    </message>
    <message>
        <source>The frequencies are out of range.</source>
        <translation>频率超出范围。</translation>
    </message>
    <message>
        <source>Raised at %1 Hz, amplitude %2</source>
        <translation>触发于 %1 Hz，幅值 %2</translation>
    </message>
    <message>
        <source>Cleared</source>
        <translation>已解除</translation>
    </message>
    <message>
        <source>up</source>
        <translation>上升</translation>
    </message>
    <message>
        <source>steady</source>
        <translation>平稳</translation>
    </message>
    <message>
        <source>Coherence disabled</source>
        <translation>相干性分析已关闭</translation>
    </message>
    <message>
        <source>Latency %1ms avg / %2ms max | Dropped %3 | Clipping %4 | Confidence %5</source>
        <translation>延迟 平均 %1ms / 最大 %2ms | 丢弃 %3 | 削波 %4 | 置信度 %5</translation>
    </message>
</context>
<context>
    <name>FftFiles</name>
    <message>
        <source>Save a snapshot</source>
        <translation>保存快照</translation>
    </message>
    <message>
        <source>Spectrum snapshot (*.json)</source>
        <translation>频谱快照 (*.json)</translation>
    </message>
    <message>
        <source>Save the spectra</source>
        <translation>保存频谱</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>逗号分隔值文件 (*.csv)</translation>
    </message>
    <message>
        <source>Open a snapshot</source>
        <translation>打开快照</translation>
    </message>
    <message>
        <source>%1 points, %2 Hz, window %3</source>
        <translation>%1 点，%2 Hz，窗函数：%3</translation>
    </message>
    <message>
        <source>Bands: %1</source>
        <translation>频带：%1</translation>
    </message>
    <message>
        <source>Coherence: %1</source>
        <translation>相干性：%1</translation>
    </message>
    <message>
        <source>Alarm (%1): %2</source>
        <translation>报警（%1）：%2</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>设置：%1</translation>
    </message>
    <message>
        <source>the same as now</source>
        <translation>与当前相同</translation>
    </message>
    <message>
        <source>other than now (%1)</source>
        <translation>与当前不同 (%1)</translation>
    </message>
    <message>
        <source>Format: %1</source>
        <translation>格式：%1</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>快照</translation>
    </message>
    <message>
        <source>The file is no spectrum snapshot.</source>
        <translation>该文件不是频谱快照。</translation>
    </message>
    <message>
        <source>The file could not be read: %1</source>
        <translation>无法读取文件：%1</translation>
    </message>
</context>
<context>
    <name>FftWindow</name>
    <message>
        <source>Rectangular</source>
        <translation>矩形窗</translation>
    </message>
    <message>
        <source>Hann</source>
        <translation>汉宁窗</translation>
    </message>
    <message>
        <source>Hamming</source>
        <translation>汉明窗</translation>
    </message>
    <message>
        <source>Blackman</source>
        <translation>布莱克曼窗</translation>
    </message>
    <message>
        <source>Flat Top</source>
        <translation>平顶窗</translation>
    </message>
</context>
<context>
    <name>FileOpening</name>
    <message>
        <source>Open a capture or a recording</source>
        <translation>打开捕获或记录</translation>
    </message>
    <message>
        <source>Captures and recordings (*.mcap *.csv)</source>
        <translation>捕获和记录 (*.mcap *.csv)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>GatewayDashboard</name>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空格键</translation>
    </message>
    <message>
        <source>Hide these charts</source>
        <translation>隐藏这些图表</translation>
    </message>
    <message>
        <source>Show these charts of the chosen nodes</source>
        <translation>显示所选节点的这些图表</translation>
    </message>
    <message>
        <source>%1 · %2 Hz</source>
        <translation>%1 · %2 Hz</translation>
    </message>
    <message>
        <source>No chart is chosen</source>
        <translation>未选择图表</translation>
    </message>
    <message>
        <source>No node is chosen</source>
        <translation>未选择节点</translation>
    </message>
    <message>
        <source>Choose above what to show.</source>
        <translation>请在上方选择要显示的内容。</translation>
    </message>
    <message>
        <source>Click a node in the table to see its waveforms. Up to %1 nodes are shown together.</source>
        <translation>点击表格中的节点即可查看其波形，最多可同时显示 %1 个节点。</translation>
    </message>
    <message>
        <source>Waiting for samples</source>
        <translation>正在等待采样数据</translation>
    </message>
    <message>
        <source>Connect a wireless gateway; its nodes appear here.</source>
        <translation>请连接无线网关，其节点会显示在这里。</translation>
    </message>
    <message>
        <source>Freeze the charts; the table keeps updating</source>
        <translation>暂停图表，表格继续更新</translation>
    </message>
    <message>
        <source>Continue with the newest samples</source>
        <translation>从最新数据继续</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>叠加</translation>
    </message>
    <message>
        <source>Show each node in a chart of its own</source>
        <translation>每个节点单独显示在一个图表中</translation>
    </message>
    <message>
        <source>Show one quantity of all chosen nodes in one plot</source>
        <translation>在一个图表中显示所有所选节点的同一物理量</translation>
    </message>
</context>
<context>
    <name>GatewayDashboardBridge</name>
    <message>
        <source>Wireless Gateway Dashboard</source>
        <translation>无线网关仪表板</translation>
    </message>
    <message>
        <source>Nodes %1 · late %2 · gone %3</source>
        <translation>节点 %1 · 延迟 %2 · 离线 %3</translation>
    </message>
    <message>
        <source>Node %1</source>
        <translation>节点 %1</translation>
    </message>
    <message>
        <source>Nodes %1 · connection ended</source>
        <translation>节点 %1 · 连接已结束</translation>
    </message>
</context>
<context>
    <name>GatewayNodeModel</name>
    <message>
        <source>Live</source>
        <translation>在线</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>延迟</translation>
    </message>
    <message>
        <source>Gone</source>
        <translation>离线</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>已结束</translation>
    </message>
</context>
<context>
    <name>GatewayNodeTable</name>
    <message>
        <source>Node</source>
        <translation>节点</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Rate
Hz</source>
        <translation>速率
Hz</translation>
    </message>
    <message>
        <source>Newest
ago</source>
        <translation>最新数据
距今</translation>
    </message>
    <message>
        <source>Missing
samples</source>
        <translation>丢失
采样</translation>
    </message>
    <message>
        <source>Temp.
°C</source>
        <translation>温度
°C</translation>
    </message>
    <message>
        <source>Pressure
Pa</source>
        <translation>气压
Pa</translation>
    </message>
    <message>
        <source>Node %1, %2</source>
        <translation>节点 %1，%2</translation>
    </message>
    <message>
        <source>%1 of %2 nodes chosen for charts</source>
        <translation>图表已选 %1 / %2 个节点</translation>
    </message>
    <message>
        <source>Move the node and its charts up</source>
        <translation>上移节点及其图表</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+↑</translation>
    </message>
    <message>
        <source>Move the node and its charts down</source>
        <translation>下移节点及其图表</translation>
    </message>
    <message>
        <source>Alt+Down</source>
        <translation>Alt+↓</translation>
    </message>
    <message>
        <source>%1 nodes are already shown. Remove one first.</source>
        <translation>已显示 %1 个节点。请先移除一个。</translation>
    </message>
</context>
<context>
    <name>KvUartPort</name>
    <message>
        <source>This program cannot open files.</source>
        <translation>此程序无法打开文件。</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>The translation for %1 cannot be loaded. The language stays as it is.</source>
        <translation>无法加载“%1”的翻译。界面语言保持不变。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Language of the interface</source>
        <translation>界面语言</translation>
    </message>
</context>
<context>
    <name>MainActions</name>
    <message>
        <source>Sensor Dashboard</source>
        <translation>传感器仪表板</translation>
    </message>
    <message>
        <source>Waveforms of the selected node</source>
        <translation>所选节点的波形</translation>
    </message>
    <message>
        <source>Wireless Gateway Dashboard</source>
        <translation>无线网关仪表板</translation>
    </message>
    <message>
        <source>All radio nodes of a connected wireless gateway</source>
        <translation>已连接的无线网关的全部无线节点</translation>
    </message>
    <message>
        <source>Spectrum of the selected node, with alarms</source>
        <translation>所选节点的频谱，带报警功能</translation>
    </message>
    <message>
        <source>Attitude of the selected node in three dimensions</source>
        <translation>所选节点的三维姿态</translation>
    </message>
    <message>
        <source>Record the stream to CSV files (%1)</source>
        <translation>将数据流记录到 CSV 文件 (%1)</translation>
    </message>
    <message>
        <source>How completely the data arrive: errors, gaps, losses (%1)</source>
        <translation>数据接收的完整程度：错误、间隔、丢失 (%1)</translation>
    </message>
    <message>
        <source>Load new firmware into the device</source>
        <translation>将新固件写入设备</translation>
    </message>
    <message>
        <source>Choose a serial port and connect (%1)</source>
        <translation>选择串口并连接 (%1)</translation>
    </message>
    <message>
        <source>Close the serial port (%1)</source>
        <translation>关闭串口 (%1)</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>退出程序</translation>
    </message>
    <message>
        <source>Waves</source>
        <translation>波形</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>网关</translation>
    </message>
    <message>
        <source>Plug in a module or a gateway, press &lt;b&gt;Open port&lt;/b&gt; (%1) and choose its serial port.</source>
        <translation>请接入模块或网关，点击&lt;b&gt;打开串口&lt;/b&gt; (%1)，然后选择对应的串口。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written: settings and logs of this run are not kept.</source>
        <translation>文件夹 %1 不可写：本次运行的设置和日志不会保留。</translation>
    </message>
    <message>
        <source>&amp;Close file</source>
        <translation>关闭文件(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Close port</source>
        <translation>关闭串口(&amp;C)</translation>
    </message>
    <message>
        <source>Play back a capture or a CSV recording (%1)</source>
        <translation>回放捕获或 CSV 记录 (%1)</translation>
    </message>
</context>
<context>
    <name>MarkerList</name>
    <message>
        <source>Marker %1</source>
        <translation>标记 %1</translation>
    </message>
</context>
<context>
    <name>MarkerPanel</name>
    <message>
        <source>Markers</source>
        <translation>标记</translation>
    </message>
    <message>
        <source>No markers</source>
        <translation>没有标记</translation>
    </message>
    <message>
        <source>M sets one at the pointer, or at the newest sample.</source>
        <translation>按 M 键可在指针处或最新采样处添加标记。</translation>
    </message>
    <message>
        <source>Show this place</source>
        <translation>显示此位置</translation>
    </message>
    <message>
        <source>Text of the marker</source>
        <translation>标记文字</translation>
    </message>
    <message>
        <source>Remove this marker</source>
        <translation>移除此标记</translation>
    </message>
</context>
<context>
    <name>MeasurePanel</name>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy the table for a spreadsheet</source>
        <translation>复制表格，可粘贴到电子表格</translation>
    </message>
</context>
<context>
    <name>MeasureTable</name>
    <message>
        <source>Minimum</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>平均值</translation>
    </message>
    <message>
        <source>Std. dev.</source>
        <translation>标准差</translation>
    </message>
    <message>
        <source>RMS</source>
        <translation>均方根</translation>
    </message>
    <message>
        <source>Peak-peak</source>
        <translation>峰峰值</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>点数</translation>
    </message>
</context>
<context>
    <name>MeshFile</name>
    <message>
        <source>The mesh file cannot be read: %1</source>
        <translation>无法读取网格文件：%1</translation>
    </message>
    <message>
        <source>The mesh file is larger than %1 MiB.</source>
        <translation>网格文件超过 %1 MiB。</translation>
    </message>
    <message>
        <source>The mesh file is damaged, or of an unsupported kind.</source>
        <translation>网格文件已损坏，或类型不受支持。</translation>
    </message>
</context>
<context>
    <name>MessageRow</name>
    <message>
        <source>Dismiss</source>
        <translation>关闭提示</translation>
    </message>
</context>
<context>
    <name>NodeCard</name>
    <message>
        <source>Nodes</source>
        <translation>节点</translation>
    </message>
    <message>
        <source>The node whose values are shown</source>
        <translation>选择要显示数值的节点</translation>
    </message>
    <message>
        <source>Node ID:%1</source>
        <translation>节点 ID: %1</translation>
    </message>
</context>
<context>
    <name>NodeOverlay</name>
    <message>
        <source>Node %1</source>
        <translation>节点 %1</translation>
    </message>
</context>
<context>
    <name>ObjReader</name>
    <message>
        <source>The OBJ file cannot be read: %1</source>
        <translation>无法读取 OBJ 文件：%1</translation>
    </message>
    <message>
        <source>The OBJ file is larger than %1 MiB.</source>
        <translation>OBJ 文件超过 %1 MiB。</translation>
    </message>
    <message>
        <source>The file is not an OBJ model: it holds no text.</source>
        <translation>该文件不是 OBJ 模型：其内容不是文本。</translation>
    </message>
    <message>
        <source>The file is not an OBJ model.</source>
        <translation>该文件不是 OBJ 模型。</translation>
    </message>
    <message>
        <source>The OBJ model has more than %1 triangles.</source>
        <translation>OBJ 模型的三角形超过 %1 个。</translation>
    </message>
    <message>
        <source>The OBJ file is damaged: a face names a vertex that does not exist.</source>
        <translation>OBJ 文件已损坏：有面引用了不存在的顶点。</translation>
    </message>
    <message>
        <source>The OBJ model has coordinates that are not finite or too large.</source>
        <translation>OBJ 模型含有非有限值或过大的坐标。</translation>
    </message>
    <message>
        <source>The OBJ file holds no faces to show.</source>
        <translation>OBJ 文件中没有可显示的面。</translation>
    </message>
    <message>
        <source>Line %1 of the OBJ file contains a coordinate that is not a number.</source>
        <translation>OBJ 文件第 %1 行包含非数字的坐标。</translation>
    </message>
</context>
<context>
    <name>OverlayChart</name>
    <message>
        <source>Show %1 of all chosen nodes</source>
        <translation>显示所有所选节点的 %1</translation>
    </message>
</context>
<context>
    <name>PictureChips</name>
    <message>
        <source>%1x</source>
        <translation>%1 倍</translation>
    </message>
    <message>
        <source>PNG at %1 times the size</source>
        <translation>PNG，尺寸放大到 %1 倍</translation>
    </message>
</context>
<context>
    <name>PlaybackBar</name>
    <message>
        <source>Unthrottled</source>
        <translation>不限速</translation>
    </message>
    <message>
        <source>Reconstructed from a CSV recording: fields that it does not hold are 0, and times are spread over each second.</source>
        <translation>由 CSV 记录重建:其中没有的字段为 0,时间在每一秒内均匀分布。</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>已到末尾</translation>
    </message>
    <message>
        <source>reached: %1</source>
        <translation>实际:%1</translation>
    </message>
    <message>
        <source>%1. This computer cannot keep up; nothing is left out.</source>
        <translation>%1。本机跟不上速度;不会丢弃任何数据。</translation>
    </message>
    <message>
        <source>Play the whole file</source>
        <translation>播放整个文件</translation>
    </message>
    <message>
        <source>Play from</source>
        <translation>播放起点</translation>
    </message>
    <message>
        <source>Play to</source>
        <translation>播放终点</translation>
    </message>
    <message>
        <source>The end</source>
        <translation>结尾</translation>
    </message>
    <message>
        <source>The start</source>
        <translation>开头</translation>
    </message>
    <message>
        <source>Here (%1)</source>
        <translation>当前位置 (%1)</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>回放</translation>
    </message>
    <message>
        <source>Play or pause (Space)</source>
        <translation>播放或暂停 (空格键)</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>步进</translation>
    </message>
    <message>
        <source>Play one packet</source>
        <translation>播放一个数据包</translation>
    </message>
    <message>
        <source>How fast the file is played</source>
        <translation>文件的播放速度</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>速率</translation>
    </message>
    <message>
        <source>Position in the file</source>
        <translation>文件中的位置</translation>
    </message>
    <message>
        <source>Position and length</source>
        <translation>位置和长度</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>循环</translation>
    </message>
    <message>
        <source>Play again from the start when the end is reached</source>
        <translation>到达末尾后从头再播放</translation>
    </message>
    <message>
        <source>Skip gaps</source>
        <translation>跳过空隙</translation>
    </message>
    <message>
        <source>Skip times without data of more than 2 s</source>
        <translation>跳过超过 2 秒无数据的时段</translation>
    </message>
    <message>
        <source>Part...</source>
        <translation>片段...</translation>
    </message>
    <message>
        <source>Play from marker to marker</source>
        <translation>在标记之间播放</translation>
    </message>
    <message>
        <source>Rate that is reached</source>
        <translation>实际达到的速度</translation>
    </message>
</context>
<context>
    <name>Qt6ModelAsset</name>
    <message>
        <source>No 3D asset was selected.</source>
        <translation>未选择三维模型。</translation>
    </message>
    <message>
        <source>The selected mesh file could not be found.</source>
        <translation>找不到所选的网格文件。</translation>
    </message>
    <message>
        <source>The selected OBJ file could not be found.</source>
        <translation>找不到所选的 OBJ 文件。</translation>
    </message>
    <message>
        <source>Unsupported 3D asset. Choose a bundled .obj model, an external .obj file, or a preconverted .mesh file.</source>
        <translation>不支持此三维模型。请选择内置的 .obj 模型、外部 .obj 文件或预先转换的 .mesh 文件。</translation>
    </message>
</context>
<context>
    <name>Recorder</name>
    <message>
        <source>The connection was lost for %1 s.</source>
        <translation>连接曾中断 %1 秒。</translation>
    </message>
</context>
<context>
    <name>RecordingActions</name>
    <message>
        <source>Marker %1 at %2 s</source>
        <translation>标记 %1，位于 %2 s</translation>
    </message>
    <message>
        <source>Marker %1</source>
        <translation>标记 %1</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>Recording stopped: %1 records</source>
        <translation>记录已停止：共 %1 条</translation>
    </message>
    <message>
        <source>&amp;Stop recording</source>
        <translation>停止记录(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>开始记录(&amp;S)</translation>
    </message>
    <message>
        <source>Writes what has arrived and closes the file</source>
        <translation>写入已收到的数据并关闭文件</translation>
    </message>
    <message>
        <source>Records with the last folder and name</source>
        <translation>使用上次的文件夹和名称进行记录</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>标记</translation>
    </message>
    <message>
        <source>Marker at %1 s</source>
        <translation>标记位于 %1 s</translation>
    </message>
    <message>
        <source>Markers go into recordings and captures: start one first</source>
        <translation>标记会写入记录或捕获文件：请先开始记录或捕获</translation>
    </message>
</context>
<context>
    <name>RecordingBadge</name>
    <message>
        <source>Recording %1</source>
        <translation>正在记录 %1</translation>
    </message>
    <message>
        <source>Recording: waiting</source>
        <translation>记录等待中</translation>
    </message>
    <message>
        <source>Recording: problem</source>
        <translation>记录出现问题</translation>
    </message>
</context>
<context>
    <name>RecordingReader</name>
    <message>
        <source>The recording %1 cannot be opened: %2</source>
        <translation>无法打开记录文件 %1：%2</translation>
    </message>
    <message>
        <source>The recording %1 is empty.</source>
        <translation>记录文件 %1 为空。</translation>
    </message>
    <message>
        <source>%1 is not a recording of this program: its columns are different.</source>
        <translation>%1 不是本程序的记录文件：列不一致。</translation>
    </message>
    <message>
        <source>The recording %1 holds no records.</source>
        <translation>记录文件 %1 中没有任何记录。</translation>
    </message>
</context>
<context>
    <name>SavePanel</name>
    <message>
        <source>Samples</source>
        <translation>采样</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>可见区间</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Save tables…</source>
        <translation>保存表格…</translation>
    </message>
    <message>
        <source>A CSV file of each chart</source>
        <translation>每个图表保存为一个 CSV 文件</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Save pictures…</source>
        <translation>保存图片…</translation>
    </message>
    <message>
        <source>A picture of each chart</source>
        <translation>每个图表保存为一张图片</translation>
    </message>
    <message>
        <source>The buttons of each chart save only that chart, in the same way.</source>
        <translation>各图表上的按钮以同样方式仅保存该图表。</translation>
    </message>
</context>
<context>
    <name>SceneMarks</name>
    <message>
        <source>N</source>
        <comment>north</comment>
        <translation>北</translation>
    </message>
    <message>
        <source>E</source>
        <comment>east</comment>
        <translation>东</translation>
    </message>
    <message>
        <source>S</source>
        <comment>south</comment>
        <translation>南</translation>
    </message>
    <message>
        <source>W</source>
        <comment>west</comment>
        <translation>西</translation>
    </message>
</context>
<context>
    <name>SensorDashboard</name>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Hold the picture; recordings go on</source>
        <translation>暂停画面，记录不受影响</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空格键</translation>
    </message>
    <message>
        <source>Hide this chart</source>
        <translation>隐藏此图表</translation>
    </message>
    <message>
        <source>Show this chart</source>
        <translation>显示此图表</translation>
    </message>
    <message>
        <source>No chart is chosen</source>
        <translation>未选择图表</translation>
    </message>
    <message>
        <source>Choose above what to show.</source>
        <translation>请在上方选择要显示的内容。</translation>
    </message>
    <message>
        <source>Continue with the newest samples</source>
        <translation>从最新数据继续</translation>
    </message>
</context>
<context>
    <name>SensorDashboardBridge</name>
    <message>
        <source>Acceleration</source>
        <translation>加速度</translation>
    </message>
    <message>
        <source>Angular Velocity</source>
        <translation>角速度</translation>
    </message>
    <message>
        <source>Magnetic Field</source>
        <translation>磁场</translation>
    </message>
    <message>
        <source>Euler Angles</source>
        <translation>欧拉角</translation>
    </message>
    <message>
        <source>Quaternion</source>
        <translation>四元数</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>气压</translation>
    </message>
    <message>
        <source>Sensor Dashboard</source>
        <translation>传感器仪表板</translation>
    </message>
</context>
<context>
    <name>SensorDataPanel</name>
    <message>
        <source>Acceleration</source>
        <translation>加速度</translation>
    </message>
    <message>
        <source>Angular velocity</source>
        <translation>角速度</translation>
    </message>
    <message>
        <source>Magnetic field</source>
        <translation>磁场</translation>
    </message>
    <message>
        <source>Quaternion</source>
        <translation>四元数</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>节点</translation>
    </message>
    <message>
        <source>Device time</source>
        <translation>设备时间</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>气压</translation>
    </message>
</context>
<context>
    <name>SessionCapture</name>
    <message>
        <source>The disk is too slow. Not captured: %1 chunks or samples.</source>
        <translation>磁盘速度过慢。未捕获的数据块或采样：%1 个。</translation>
    </message>
</context>
<context>
    <name>SpectrumChart</name>
    <message>
        <source>%1 points · %2 Hz · %3 · %4 Hz per bin</source>
        <translation>%1 点 · %2 Hz · %3 · Δf %4 Hz</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>Show amplitudes as they are</source>
        <translation>按线性刻度显示幅值</translation>
    </message>
    <message>
        <source>Show amplitudes in decibels</source>
        <translation>按分贝显示幅值</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Show amplitudes up to the set maximum</source>
        <translation>按设定的上限显示幅值</translation>
    </message>
    <message>
        <source>Fit the amplitude axis to the curves beyond 0 Hz</source>
        <translation>使幅值轴适应 0 Hz 以外的曲线</translation>
    </message>
    <message>
        <source>Remove the cursors A and B</source>
        <translation>移除光标 A 和 B</translation>
    </message>
    <message>
        <source>Measure between the cursors A and B</source>
        <translation>在光标 A 和 B 之间测量</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>A, B</source>
        <translation>A、B</translation>
    </message>
    <message>
        <source>Reset the view</source>
        <translation>重置视图</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Save a picture of the chart</source>
        <translation>保存图表图片</translation>
    </message>
    <message>
        <source>Save the spectra as a table</source>
        <translation>将频谱保存为表格</translation>
    </message>
    <message>
        <source>Save a snapshot of spectra and analysis</source>
        <translation>保存频谱与分析结果的快照</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>打开…</translation>
    </message>
    <message>
        <source>Level (dB, 0 dB = 1 %1)</source>
        <translation>电平 (dB，0 dB = 1 %1)</translation>
    </message>
    <message>
        <source>Block %1 %</source>
        <translation>数据块 %1 %</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>统计</translation>
    </message>
    <message>
        <source>Limits of the axes, size of pictures</source>
        <translation>坐标轴范围、图片尺寸</translation>
    </message>
    <message>
        <source>Show the contents of a saved snapshot</source>
        <translation>显示已保存快照的内容</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
</context>
<context>
    <name>SpectrumViewState</name>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Connecting...</source>
        <translation>正在连接...</translation>
    </message>
    <message>
        <source>Connected... %1, %2 baud</source>
        <translation>已连接：%1，波特率 %2</translation>
    </message>
    <message>
        <source>Node ID:%1</source>
        <translation>节点 ID: %1</translation>
    </message>
    <message>
        <source>Unconnected...</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Playing back %1</source>
        <translation>正在回放 %1</translation>
    </message>
</context>
<context>
    <name>ThreeDScene</name>
    <message>
        <source>Drag to turn, right-drag to move, wheel to zoom, double-click to reset</source>
        <translation>拖动旋转，右键拖动平移，滚轮缩放，双击重置</translation>
    </message>
</context>
<context>
    <name>TimeChart</name>
    <message>
        <source>Waiting for samples</source>
        <translation>正在等待采样数据</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>实时</translation>
    </message>
    <message>
        <source>Back to the newest samples</source>
        <translation>回到最新数据</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Span and limits of the axes</source>
        <translation>时间跨度和坐标轴范围</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>统计</translation>
    </message>
    <message>
        <source>Remove the measuring cursors</source>
        <translation>移除测量光标</translation>
    </message>
    <message>
        <source>Measure between two cursors</source>
        <translation>用两个光标测量</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>A, B</source>
        <translation>A、B</translation>
    </message>
    <message>
        <source>Reset the view</source>
        <translation>重置视图</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Save a picture of the chart</source>
        <translation>保存图表图片</translation>
    </message>
    <message>
        <source>Save the visible samples</source>
        <translation>保存可见区间的采样数据</translation>
    </message>
    <message>
        <source>Show all charts</source>
        <translation>显示所有图表</translation>
    </message>
    <message>
        <source>Show this chart alone</source>
        <translation>仅显示此图表</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Show %1 seconds</source>
        <translation>显示 %1 秒</translation>
    </message>
    <message>
        <source>No new samples</source>
        <translation>没有新的采样数据</translation>
    </message>
</context>
<context>
    <name>TimeViewState</name>
    <message>
        <source>t %1</source>
        <translation>t %1</translation>
    </message>
</context>
<context>
    <name>ToolADI</name>
    <message>
        <source>N</source>
        <comment>north</comment>
        <translation>北</translation>
    </message>
    <message>
        <source>E</source>
        <comment>east</comment>
        <translation>东</translation>
    </message>
    <message>
        <source>S</source>
        <comment>south</comment>
        <translation>南</translation>
    </message>
    <message>
        <source>W</source>
        <comment>west</comment>
        <translation>西</translation>
    </message>
    <message>
        <source>Attitude indicator</source>
        <translation>姿态指示器</translation>
    </message>
    <message>
        <source>No attitude</source>
        <translation>无姿态数据</translation>
    </message>
</context>
<context>
    <name>TriggerRow</name>
    <message>
        <source>Trigger</source>
        <translation>触发</translation>
    </message>
    <message>
        <source>Watch %1</source>
        <translation>监视 %1</translation>
    </message>
    <message>
        <source>Rising through the level</source>
        <translation>上升穿过电平</translation>
    </message>
    <message>
        <source>Falling through the level</source>
        <translation>下降穿过电平</translation>
    </message>
    <message>
        <source>Crossing the level either way</source>
        <translation>任一方向穿过电平</translation>
    </message>
    <message>
        <source>Band</source>
        <translation>区间</translation>
    </message>
    <message>
        <source>Leaving the band between two levels</source>
        <translation>超出两个电平之间的区间</translation>
    </message>
    <message>
        <source>Other end of the band</source>
        <translation>区间的另一端</translation>
    </message>
    <message>
        <source>Share of the picture before the event</source>
        <translation>事件之前的部分占画面的比例</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Run live while nothing happens</source>
        <translation>无事件时显示实时数据</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>普通</translation>
    </message>
    <message>
        <source>Hold each event until the next</source>
        <translation>保持每个事件的画面，直到下一个事件</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>单次</translation>
    </message>
    <message>
        <source>Hold the first event</source>
        <translation>保持首个事件的画面</translation>
    </message>
    <message>
        <source>Set a marker</source>
        <translation>添加标记</translation>
    </message>
    <message>
        <source>Mark each event that was caught</source>
        <translation>标记捕获到的每个事件</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>解除保持</translation>
    </message>
    <message>
        <source>Back to the live samples; wait for the next event</source>
        <translation>回到实时数据，等待下一个事件</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>Start a recording with the event, with the last folder and name</source>
        <translation>事件发生时开始记录，使用上次的文件夹和名称</translation>
    </message>
    <message>
        <source>Trigger level; drag its line to change it</source>
        <translation>触发电平；拖动电平线可更改</translation>
    </message>
</context>
<context>
    <name>UpdateNoteCard</name>
    <message>
        <source>The device runs its bootloader and sends no data: restart it, or choose a firmware.</source>
        <translation>设备处于引导程序中，不发送数据：请重启设备，或选择固件。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Choose firmware</source>
        <translation>选择固件</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>不再提醒</translation>
    </message>
    <message>
        <source>The device is waiting in its bootloader.</source>
        <translation>设备正在引导程序中等待。</translation>
    </message>
    <message>
        <source>Chooses the same file, connects and downloads it</source>
        <translation>选择同一文件，连接设备并烧录</translation>
    </message>
    <message>
        <source>Removes the reminder of this update</source>
        <translation>移除此次升级的提醒</translation>
    </message>
</context>
<context>
    <name>UpdateReport</name>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Chip</source>
        <translation>芯片</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>%1 at %2 baud</source>
        <translation>%1，%2 波特</translation>
    </message>
    <message>
        <source>Old build</source>
        <translation>旧版本</translation>
    </message>
    <message>
        <source>New build</source>
        <translation>新版本</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 字节</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>闪存</translation>
    </message>
    <message>
        <source>Status of the bootloader</source>
        <translation>引导程序状态</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>已写入</translation>
    </message>
    <message>
        <source>Packets</source>
        <translation>数据包</translation>
    </message>
    <message>
        <source>%1 sent, of these %2 again</source>
        <translation>已发送 %1 个，其中重发 %2 个</translation>
    </message>
    <message>
        <source>Time for writing</source>
        <translation>写入用时</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Time for reading back</source>
        <translation>回读用时</translation>
    </message>
</context>
<context>
    <name>WaveChart</name>
    <message>
        <source>No new samples</source>
        <translation>没有新的采样数据</translation>
    </message>
    <message>
        <source>Low-pass filter</source>
        <translation>低通滤波</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>触发</translation>
    </message>
</context>
<context>
    <name>WaveChartBridge</name>
    <message>
        <source>Acceleration (G)</source>
        <translation>加速度 (G)</translation>
    </message>
    <message>
        <source>Angular Velocity (°/s)</source>
        <translation>角速度 (°/s)</translation>
    </message>
    <message>
        <source>Magnetic Field (μT)</source>
        <translation>磁场 (μT)</translation>
    </message>
    <message>
        <source>Euler Angles (°)</source>
        <translation>欧拉角 (°)</translation>
    </message>
    <message>
        <source>Quaternion (Norm)</source>
        <translation>四元数 (归一化)</translation>
    </message>
    <message>
        <source>Pressure (Pa)</source>
        <translation>气压 (Pa)</translation>
    </message>
    <message>
        <source>The cutoff frequency must be above 0 Hz.</source>
        <translation>截止频率必须大于 0 Hz。</translation>
    </message>
    <message>
        <source>The cutoff frequency is too low for %1 samples per second.</source>
        <translation>对于每秒 %1 个采样，截止频率过低。</translation>
    </message>
</context>
<context>
    <name>WaveTrigger</name>
    <message>
        <source>Off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待触发</translation>
    </message>
    <message>
        <source>Catching</source>
        <translation>正在捕获</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>已保持</translation>
    </message>
</context>
<context>
    <name>WaveViewState</name>
    <message>
        <source>Trigger</source>
        <translation>触发</translation>
    </message>
</context>
<context>
    <name>chart_text</name>
    <message>
        <source>%1 Hz · last %2 s of %3 s</source>
        <translation>%1 Hz · 最近 %2 s / 共 %3 s</translation>
    </message>
    <message>
        <source>%1 Hz · %2 s to %3 s of %4 s</source>
        <translation>%1 Hz · %2 s 至 %3 s / 共 %4 s</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>重启</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>中断</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>%1 missing</source>
        <translation>丢失 %1 个</translation>
    </message>
    <message>
        <source>The store ends here: %1 s</source>
        <translation>数据仅保留到此处：%1 s</translation>
    </message>
</context>
<context>
    <name>form_about</name>
    <message>
        <source>About ORVEL-IMU</source>
        <translation>关于 ORVEL-IMU</translation>
    </message>
    <message>
        <source>KVCenter shows the data of inertial measurement units on a serial line and sets the units up.</source>
        <translation>KVCenter 用于显示串口惯性测量单元（IMU）的数据，并对其进行配置。</translation>
    </message>
    <message>
        <source>Toolkit</source>
        <translation>开发框架</translation>
    </message>
    <message>
        <source>Settings and logs</source>
        <translation>设置和日志</translation>
    </message>
    <message>
        <source>Folder of settings and logs</source>
        <translation>设置和日志所在的文件夹</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Qt %1 (licence: GNU LGPL 3; Qt Quick 3D: GNU GPL 3)</source>
        <translation>Qt %1（许可证：GNU LGPL 3；Qt Quick 3D：GNU GPL 3）</translation>
    </message>
</context>
<context>
    <name>form_base</name>
    <message>
        <source>No device connected</source>
        <translation>未连接设备</translation>
    </message>
    <message>
        <source>Open port...</source>
        <translation>打开串口...</translation>
    </message>
    <message>
        <source>&amp;Serial</source>
        <translation>串口(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Font size</source>
        <translation>字号(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>&amp;Open port...</source>
        <translation>打开串口(&amp;O)...</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>&amp;Close port</source>
        <translation>关闭串口(&amp;C)</translation>
    </message>
    <message>
        <source>Ctrl+W</source>
        <translation>Ctrl+W</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&amp;Spectrum</source>
        <translation>频谱(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;3D view</source>
        <translation>三维视图(&amp;3)</translation>
    </message>
    <message>
        <source>&amp;Copy values</source>
        <translation>复制数值(&amp;C)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>Copy all values of the selected node to the clipboard</source>
        <translation>将所选节点的全部数值复制到剪贴板</translation>
    </message>
    <message>
        <source>&amp;Small</source>
        <translation>小(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Medium</source>
        <translation>中(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Big</source>
        <translation>大(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Record...</source>
        <translation>记录(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Device settings...</source>
        <translation>设备设置(&amp;D)...</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>Identify and configure the device (Ctrl+E)</source>
        <translation>识别并配置设备 (Ctrl+E)</translation>
    </message>
    <message>
        <source>&amp;Firmware update...</source>
        <translation>固件升级(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Ctrl+3</source>
        <translation>Ctrl+3</translation>
    </message>
    <message>
        <source>&amp;Link health</source>
        <translation>链路质量(&amp;L)</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>Numbers and traces</source>
        <translation>数值与曲线</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>开始记录(&amp;S)</translation>
    </message>
    <message>
        <source>F9</source>
        <translation>F9</translation>
    </message>
    <message>
        <source>Set &amp;marker</source>
        <translation>添加标记(&amp;M)</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <source>Marks this moment in a file beside the recording</source>
        <translation>在记录的附属文件中标记此刻</translation>
    </message>
    <message>
        <source>No hardware at hand? The simulator behaves like a device.</source>
        <translation>手边没有硬件？模拟器的行为与设备相同。</translation>
    </message>
    <message>
        <source>Try without a device</source>
        <translation>无设备试用</translation>
    </message>
    <message>
        <source>Start &amp;capture</source>
        <translation>开始捕获(&amp;C)</translation>
    </message>
    <message>
        <source>Ctrl+F9</source>
        <translation>Ctrl+F9</translation>
    </message>
    <message>
        <source>&amp;New window</source>
        <translation>新建窗口(&amp;N)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+N</source>
        <translation>Ctrl+Shift+N</translation>
    </message>
    <message>
        <source>Opens another window for another device</source>
        <translation>为另一台设备打开新窗口</translation>
    </message>
    <message>
        <source>Open &amp;file...</source>
        <translation>打开文件(&amp;F)...</translation>
    </message>
    <message>
        <source>Ctrl+Shift+O</source>
        <translation>Ctrl+Shift+O</translation>
    </message>
</context>
<context>
    <name>form_com_select</name>
    <message>
        <source>Open serial port</source>
        <translation>打开串口</translation>
    </message>
    <message>
        <source>&amp;Serial ports</source>
        <translation>串口(&amp;S)</translation>
    </message>
    <message>
        <source>Serial ports</source>
        <translation>串口</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>制造商</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>No serial port found</source>
        <translation>未找到串口</translation>
    </message>
    <message>
        <source>&amp;Baud rate</source>
        <translation>波特率(&amp;B)</translation>
    </message>
    <message>
        <source>Bits per second, as set in the device</source>
        <translation>每秒位数，须与设备中的设置一致</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>%1 is not there at the moment. Plug the device in, or choose another port.</source>
        <translation>%1 当前不存在。请接入设备，或选择其他端口。</translation>
    </message>
    <message>
        <source>%1 is not a serial port.</source>
        <translation>%1 不是串口。</translation>
    </message>
    <message>
        <source>Plug the device in: it will appear here.

To try the program without a device, type demo: below. A device on another computer has an address there, such as tcp://192.168.1.20:4001.</source>
        <translation>接入设备后，它会显示在这里。

要在没有设备的情况下试用本程序，请在下方输入“demo:”。其他计算机上的设备通过地址访问，例如 tcp://192.168.1.20:4001。</translation>
    </message>
    <message>
        <source>&amp;Port or address</source>
        <translation>串口或地址(&amp;P)</translation>
    </message>
    <message>
        <source>A port, or tcp://host:port, rfc2217://host:port, udp://host:port</source>
        <translation>串口，或 tcp://host:port、rfc2217://host:port、udp://host:port</translation>
    </message>
    <message>
        <source>A port of the list, or typed by hand: the path of a port, or an address such as tcp://host:port, rfc2217://host:port?baud=115200, udp://host:port, file:path or demo:</source>
        <translation>从列表中选择串口，或手动输入：串口路径，或地址，例如 tcp://host:port、rfc2217://host:port?baud=115200、udp://host:port、file:path 或 demo:</translation>
    </message>
    <message>
        <source>&amp;File...</source>
        <translation>文件(&amp;F)...</translation>
    </message>
    <message>
        <source>Play a capture or a recording</source>
        <translation>回放捕获或记录文件</translation>
    </message>
    <message>
        <source>&amp;Recent</source>
        <translation>最近使用(&amp;R)</translation>
    </message>
    <message>
        <source>Sources opened last</source>
        <translation>最近打开的数据源</translation>
    </message>
    <message>
        <source>The sources that were opened last</source>
        <translation>最近打开过的数据源</translation>
    </message>
    <message>
        <source>Reco&amp;nnect</source>
        <translation>自动重新连接(&amp;N)</translation>
    </message>
    <message>
        <source>Choose a port, or type its path or an address.</source>
        <translation>请选择串口，或输入串口路径或地址。</translation>
    </message>
    <message>
        <source>Opens the same device again when it was lost and is back</source>
        <translation>设备断开并恢复后，重新打开同一设备</translation>
    </message>
    <message>
        <source>Not for this source: another device could not be told from it. An adapter with a serial number, a path in /dev/serial/by-id or an address on the network can be.</source>
        <translation>不适用于此数据源：无法将其与其他设备区分。带序列号的适配器、/dev/serial/by-id 中的路径或网络地址则可以区分。</translation>
    </message>
    <message>
        <source>Open Capture or Recording</source>
        <translation>打开捕获或记录文件</translation>
    </message>
    <message>
        <source>Captures and recordings (*.mcap *.csv);;All files (*)</source>
        <translation>捕获和记录文件 (*.mcap *.csv);;所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>form_fftchart</name>
    <message>
        <source>Acceleration</source>
        <translation>加速度</translation>
    </message>
    <message>
        <source>Value (mG)</source>
        <translation>幅值 (mG)</translation>
    </message>
    <message>
        <source>Angular Velocity</source>
        <translation>角速度</translation>
    </message>
    <message>
        <source>Value (deg/s)</source>
        <translation>幅值 (deg/s)</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>实时</translation>
    </message>
    <message>
        <source>Max Hold</source>
        <translation>最大保持</translation>
    </message>
    <message>
        <source>Avg Hold</source>
        <translation>平均保持</translation>
    </message>
    <message>
        <source>FFT Analysis</source>
        <translation>FFT 分析</translation>
    </message>
    <message>
        <source>Sample points:</source>
        <translation>采样点数：</translation>
    </message>
    <message>
        <source>Window:</source>
        <translation>窗函数：</translation>
    </message>
    <message>
        <source>Hold:</source>
        <translation>保持：</translation>
    </message>
    <message>
        <source>Amplitude Max:</source>
        <translation>幅值上限：</translation>
    </message>
    <message>
        <source>Switch between acceleration and angular velocity spectra.</source>
        <translation>在加速度频谱与角速度频谱之间切换。</translation>
    </message>
    <message>
        <source>Choose how many time-domain samples are included in each FFT calculation.</source>
        <translation>选择每次 FFT 计算所用的时域采样点数。</translation>
    </message>
    <message>
        <source>Select the window function applied before the FFT.</source>
        <translation>选择 FFT 之前施加的窗函数。</translation>
    </message>
    <message>
        <source>Choose whether the spectrum is live, max-hold, or averaged across frames.</source>
        <translation>选择显示实时频谱、最大保持频谱或多帧平均频谱。</translation>
    </message>
    <message>
        <source>Set the visible FFT amplitude ceiling. Acceleration can be adjusted up to 32000 mG and angular velocity up to 4000 deg/s.</source>
        <translation>设置 FFT 幅值的显示上限。加速度最高可设为 32000 mG，角速度最高可设为 4000 deg/s。</translation>
    </message>
    <message>
        <source>Shows the current sample rate and the RMSE of the resultant time-domain signal.</source>
        <translation>显示当前采样频率和合成时域信号的 RMSE。</translation>
    </message>
    <message>
        <source>Start or pause FFT updates.</source>
        <translation>开始或暂停 FFT 更新。</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Sample Frequency:%1Hz, RMSE of Norm:%2</source>
        <translation>采样频率：%1 Hz，合成 RMSE：%2</translation>
    </message>
    <message>
        <source>FFT %1</source>
        <translation>%1 FFT</translation>
    </message>
    <message>
        <source>Hover to inspect frequency and amplitude. Mouse wheel zooms Y, Ctrl + wheel zooms X, left drag pans, and right or middle double-click resets the view.</source>
        <translation>悬停可查看频率和幅值。滚轮缩放 Y 轴，Ctrl + 滚轮缩放 X 轴，按住左键拖动可平移，右键或中键双击可重置视图。</translation>
    </message>
    <message>
        <source>Ignore the steady value</source>
        <translation>忽略稳态值</translation>
    </message>
    <message>
        <source>Leaves 0 Hz, and what the window spreads of it into the bins beside it, out of peak and alarm. Otherwise gravity would be the highest peak of every acceleration spectrum.</source>
        <translation>峰值和报警不考虑 0 Hz 以及窗函数使其泄漏到相邻谱线的部分。否则重力会成为每个加速度频谱的最高峰。</translation>
    </message>
</context>
<context>
    <name>form_link_health</name>
    <message>
        <source>Link health</source>
        <translation>链路质量</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>线路</translation>
    </message>
    <message>
        <source>Bytes received</source>
        <translation>已接收字节</translation>
    </message>
    <message>
        <source>All bytes of this connection</source>
        <translation>本次连接接收的全部字节</translation>
    </message>
    <message>
        <source>Data packets</source>
        <translation>数据包</translation>
    </message>
    <message>
        <source>Packets whose checksum fits; their samples are shown and recorded</source>
        <translation>校验正确的数据包；其采样会显示并记录</translation>
    </message>
    <message>
        <source>Bootloader packets</source>
        <translation>引导程序数据包</translation>
    </message>
    <message>
        <source>Answers of the bootloader during a firmware update</source>
        <translation>固件更新期间引导程序的应答</translation>
    </message>
    <message>
        <source>Checksum errors</source>
        <translation>校验错误</translation>
    </message>
    <message>
        <source>Packets that were damaged on the line and rejected</source>
        <translation>在线路上损坏而被拒绝的数据包</translation>
    </message>
    <message>
        <source>Over-long lengths</source>
        <translation>长度超限</translation>
    </message>
    <message>
        <source>Headers that claim more bytes than a packet can have</source>
        <translation>声明的字节数超过数据包上限的包头</translation>
    </message>
    <message>
        <source>Unknown packet types</source>
        <translation>未知包类型</translation>
    </message>
    <message>
        <source>Start bytes that no known packet type follows</source>
        <translation>其后不是已知包类型的起始字节</translation>
    </message>
    <message>
        <source>Bytes outside packets</source>
        <translation>数据包之外的字节</translation>
    </message>
    <message>
        <source>of these, noise</source>
        <translation>其中的噪声</translation>
    </message>
    <message>
        <source>Bytes outside packets that cannot be text</source>
        <translation>数据包之外且不可能是文本的字节</translation>
    </message>
    <message>
        <source>Bytes before the first packet</source>
        <translation>首个数据包之前的字节</translation>
    </message>
    <message>
        <source>A port is mostly opened in the middle of a packet: no sign of a fault</source>
        <translation>打开串口时通常正处于数据包中间，并非故障</translation>
    </message>
    <message>
        <source>Last error</source>
        <translation>最近的错误</translation>
    </message>
    <message>
        <source>Time of the last error</source>
        <translation>最近错误的时间</translation>
    </message>
    <message>
        <source>The computer&apos;s clock</source>
        <translation>计算机时间</translation>
    </message>
    <message>
        <source>Stream</source>
        <translation>数据流</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>采样</translation>
    </message>
    <message>
        <source>Samples of all nodes</source>
        <translation>所有节点的采样</translation>
    </message>
    <message>
        <source>Missing samples</source>
        <translation>丢失的采样</translation>
    </message>
    <message>
        <source>By the time stamps of the samples, for all nodes; a dash when they have none</source>
        <translation>依据采样的时间戳，统计所有节点；没有时间戳时显示短横线</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>丢失率</translation>
    </message>
    <message>
        <source>Share of missing samples among all that the device sent</source>
        <translation>丢失的采样占设备发送总数的比例</translation>
    </message>
    <message>
        <source>Largest gap</source>
        <translation>最长间隔</translation>
    </message>
    <message>
        <source>Longest time between two samples with others missing between them, by the device&apos;s clock</source>
        <translation>中间有采样丢失的两个采样之间的最长时间（按设备时钟）</translation>
    </message>
    <message>
        <source>Last gap</source>
        <translation>最近的间隔</translation>
    </message>
    <message>
        <source>The computer&apos;s clock at the end of the last gap</source>
        <translation>最近一次间隔结束时的计算机时间</translation>
    </message>
    <message>
        <source>Clock jumps</source>
        <translation>时钟跳变</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>Records dropped</source>
        <translation>已丢弃的记录</translation>
    </message>
    <message>
        <source>The disk was too slow for them</source>
        <translation>磁盘速度过慢</translation>
    </message>
    <message>
        <source>Records not written</source>
        <translation>未写入的记录</translation>
    </message>
    <message>
        <source>The file could not be written</source>
        <translation>文件无法写入</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>节点</translation>
    </message>
    <message>
        <source>Figures of each node</source>
        <translation>各节点的数值</translation>
    </message>
    <message>
        <source>Nothing has been connected yet. Open a serial port to see how completely its data arrive.</source>
        <translation>尚未连接。打开串口后可查看数据接收的完整程度。</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>关闭(&amp;L)</translation>
    </message>
    <message>
        <source>checksum</source>
        <translation>校验</translation>
    </message>
    <message>
        <source>over-long length</source>
        <translation>长度超限</translation>
    </message>
    <message>
        <source>unknown packet type</source>
        <translation>未知包类型</translation>
    </message>
    <message>
        <source>noise</source>
        <translation>噪声</translation>
    </message>
    <message>
        <source>Copy all figures to the clipboard</source>
        <translation>将全部数值复制到剪贴板</translation>
    </message>
    <message>
        <source>There is nothing to copy yet</source>
        <translation>尚无可复制的内容</translation>
    </message>
    <message>
        <source>Connected: %1, %2 baud</source>
        <translation>已连接：%1，波特率 %2</translation>
    </message>
    <message>
        <source>Closed: %1, %2 baud. Figures of the last connection.</source>
        <translation>已关闭：%1，波特率 %2。显示上次连接的数值。</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>丢失</translation>
    </message>
    <message>
        <source>Text that the device answers to commands, and the remains of damaged packets</source>
        <translation>设备对命令的文本应答，以及损坏数据包的残余</translation>
    </message>
    <message>
        <source>The latest damage on the line</source>
        <translation>线路上最近一次数据损坏</translation>
    </message>
    <message>
        <source>The device restarted or its time was set; what was lost in between is not known</source>
        <translation>设备重启或其时间被设置；其间丢失的数据不明</translation>
    </message>
</context>
<context>
    <name>form_record</name>
    <message>
        <source>Record to file</source>
        <translation>记录到文件</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>文件夹(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>浏览(&amp;B)...</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>名称(&amp;N)</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>记录时长</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>速率</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>文件大小</translation>
    </message>
    <message>
        <source>Free on disk</source>
        <translation>磁盘可用空间</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Show in f&amp;older</source>
        <translation>在文件夹中显示(&amp;O)</translation>
    </message>
    <message>
        <source>Opens the folder of the recording</source>
        <translation>打开记录文件所在的文件夹</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Type a name.</source>
        <translation>请输入名称。</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>名称过长。</translation>
    </message>
    <message>
        <source>A name cannot hold any of %1</source>
        <translation>名称不能包含以下任何字符：%1</translation>
    </message>
    <message>
        <source>This name is reserved by some systems. Choose another one.</source>
        <translation>此名称是某些系统的保留名称。请改用其他名称。</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>选择记录文件夹</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>请选择文件夹。</translation>
    </message>
    <message>
        <source>&amp;Stop recording</source>
        <translation>停止记录(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>开始记录(&amp;S)</translation>
    </message>
    <message>
        <source>Writes what has arrived and closes the file</source>
        <translation>写入已收到的数据并关闭文件</translation>
    </message>
    <message>
        <source>Writes every sample that arrives into a file</source>
        <translation>将收到的每个采样写入文件</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>正在记录</translation>
    </message>
    <message>
        <source>Recording ended: the port was closed</source>
        <translation>记录已结束：串口已关闭</translation>
    </message>
    <message>
        <source>Recording stopped</source>
        <translation>记录已停止</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>尚未记录</translation>
    </message>
    <message>
        <source>Recording goes on when this window is closed.</source>
        <translation>关闭此窗口后，记录仍会继续。</translation>
    </message>
    <message>
        <source>Stop the recording to change this</source>
        <translation>停止记录后才能更改</translation>
    </message>
    <message>
        <source>This folder was created for the recording.</source>
        <translation>此文件夹是为本次记录新建的。</translation>
    </message>
    <message>
        <source>This folder does not exist yet: starting creates it.</source>
        <translation>此文件夹尚不存在，开始记录时将自动创建。</translation>
    </message>
    <message>
        <source>Saved as %1; a new file begins every hour.</source>
        <translation>保存为 %1；每小时新建一个文件。</translation>
    </message>
    <message>
        <source>%1 records/s</source>
        <translation>%1 条/秒</translation>
    </message>
    <message>
        <source>%1, enough for days</source>
        <translation>%1，可记录数日</translation>
    </message>
    <message>
        <source>%1, enough for %2 h</source>
        <translation>%1，可记录约 %2 小时</translation>
    </message>
    <message>
        <source>%1, enough for %2 min</source>
        <translation>%1，可记录约 %2 分钟</translation>
    </message>
    <message>
        <source>%1 is a file, not a folder.</source>
        <translation>%1 是文件，不是文件夹。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created. Choose another one.</source>
        <translation>无法创建文件夹 %1。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>The disk is too slow. Records dropped: %1</source>
        <translation>磁盘速度过慢。已丢弃的记录条数：%1</translation>
    </message>
    <message>
        <source>The file cannot be written: %1</source>
        <translation>无法写入文件：%1</translation>
    </message>
    <message>
        <source>Records that could not be written: %1</source>
        <translation>未能写入的记录条数：%1</translation>
    </message>
    <message>
        <source>%1 has been deleted or moved. Stop and start again to record into a new file.</source>
        <translation>%1 已被删除或移动。请停止后重新开始，以记录到新文件。</translation>
    </message>
    <message>
        <source>The disk is nearly full.</source>
        <translation>磁盘空间即将用尽。</translation>
    </message>
    <message>
        <source>Records written</source>
        <translation>已写入条数</translation>
    </message>
    <message>
        <source>The folder %1 cannot be shown.</source>
        <translation>无法显示文件夹 %1。</translation>
    </message>
    <message>
        <source>Writing the last records…</source>
        <translation>正在写入最后的记录…</translation>
    </message>
    <message>
        <source>%1, enough for less than 1 min</source>
        <translation>%1，可记录不足 1 分钟</translation>
    </message>
    <message>
        <source>The last recording is still being written. Try again when that has ended.</source>
        <translation>上一次记录仍在写入，请待其结束后重试。</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>正在开始…</translation>
    </message>
    <message>
        <source>Stop &amp;after</source>
        <translation>按时长停止(&amp;A)</translation>
    </message>
    <message>
        <source>Longest time in minutes</source>
        <translation>最长时间（分钟）</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>Stop a&amp;t</source>
        <translation>按总大小停止(&amp;T)</translation>
    </message>
    <message>
        <source>Largest size of all files in MiB</source>
        <translation>所有文件的总大小上限 (MiB)</translation>
    </message>
    <message>
        <source>When the connection was lost, recording goes on in a new file as soon as the port is open again</source>
        <translation>连接断开后，一旦重新打开串口，即在新文件中继续记录</translation>
    </message>
    <message>
        <source>Waiting for the connection to come back</source>
        <translation>正在等待连接恢复</translation>
    </message>
    <message>
        <source>Recording ended: the time is up</source>
        <translation>记录已结束：已达到设定的时长</translation>
    </message>
    <message>
        <source>Recording ended: the size is reached</source>
        <translation>记录已结束：已达到设定的大小</translation>
    </message>
    <message>
        <source>Open the port again to go on.</source>
        <translation>重新打开串口后即可继续。</translation>
    </message>
    <message>
        <source>A file holds 16 nodes. Not recorded: %1</source>
        <translation>一个文件最多容纳 16 个节点。未记录：%1</translation>
    </message>
    <message>
        <source>A file beside the recording cannot be written: %1</source>
        <translation>无法写入记录的附属文件：%1</translation>
    </message>
    <message>
        <source>Continue after the cable was unplu&amp;gged</source>
        <translation>拔线重连后继续记录(&amp;G)</translation>
    </message>
    <message>
        <source>Not connected. Open a serial port first.</source>
        <translation>未连接。请先打开串口。</translation>
    </message>
</context>
<context>
    <name>form_settings</name>
    <message>
        <source>Device settings</source>
        <translation>设备设置</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>产品</translation>
    </message>
    <message>
        <source>&amp;Identify</source>
        <translation>识别(&amp;I)</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>构建</translation>
    </message>
    <message>
        <source>&amp;Module</source>
        <translation>模块(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Node ID</source>
        <translation>节点 ID(&amp;N)</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>请选择</translation>
    </message>
    <message>
        <source>Number of the module in a radio network, 0 to 255</source>
        <translation>模块在无线网络中的编号，0 到 255</translation>
    </message>
    <message>
        <source>Output &amp;rate (Hz)</source>
        <translation>输出频率 (Hz)(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Attitude mode</source>
        <translation>姿态模式(&amp;A)</translation>
    </message>
    <message>
        <source>0: 6-axis, without magnetometer</source>
        <translation>0：6 轴，不使用磁力计</translation>
    </message>
    <message>
        <source>1: 9-axis, with magnetometer</source>
        <translation>1：9 轴，使用磁力计</translation>
    </message>
    <message>
        <source>Leave as it is</source>
        <translation>保持不变</translation>
    </message>
    <message>
        <source>Which settings can be changed depends on the device. Connect it and identify it.</source>
        <translation>可更改的设置因设备而异。请连接设备并进行识别。</translation>
    </message>
    <message>
        <source>&amp;Save to device</source>
        <translation>保存到设备(&amp;S)</translation>
    </message>
    <message>
        <source>C&amp;ommands</source>
        <translation>命令(&amp;O)</translation>
    </message>
    <message>
        <source>Sent and received</source>
        <translation>收发记录</translation>
    </message>
    <message>
        <source>&amp;Copy log</source>
        <translation>复制记录(&amp;C)</translation>
    </message>
    <message>
        <source>Nothing sent yet</source>
        <translation>尚未发送任何内容</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>关闭(&amp;L)</translation>
    </message>
    <message>
        <source>Read info</source>
        <translation>读取信息</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>复位</translation>
    </message>
    <message>
        <source>Stop output</source>
        <translation>停止输出</translation>
    </message>
    <message>
        <source>Resume output</source>
        <translation>恢复输出</translation>
    </message>
    <message>
        <source>Save config</source>
        <translation>保存配置</translation>
    </message>
    <message>
        <source>Log COM config</source>
        <translation>查询串口配置</translation>
    </message>
    <message>
        <source>Log user config</source>
        <translation>查询用户配置</translation>
    </message>
    <message>
        <source>Log disable</source>
        <translation>关闭日志输出</translation>
    </message>
    <message>
        <source>Reboot</source>
        <translation>重启</translation>
    </message>
    <message>
        <source>No device identified</source>
        <translation>未识别到设备</translation>
    </message>
    <message>
        <source>Saving does not change the rate of this device.</source>
        <translation>保存不会更改此设备的输出频率。</translation>
    </message>
    <message>
        <source>Waiting for the device: %1</source>
        <translation>正在等待设备：%1</translation>
    </message>
    <message>
        <source>Identify the device first.</source>
        <translation>请先识别设备。</translation>
    </message>
    <message>
        <source>Choose a node ID first.</source>
        <translation>请先选择节点 ID。</translation>
    </message>
    <message>
        <source>Choose an output rate first.</source>
        <translation>请先选择输出频率。</translation>
    </message>
    <message>
        <source>Sends %1</source>
        <translation>发送 %1</translation>
    </message>
    <message>
        <source>Stops the output, reads what the device is and resumes the output</source>
        <translation>停止输出，读取设备信息，然后恢复输出</translation>
    </message>
    <message>
        <source>Writes these settings and restarts the device</source>
        <translation>写入这些设置并重启设备</translation>
    </message>
    <message>
        <source>Saving restarts the device; this takes 2 seconds.</source>
        <translation>保存后设备会重启，约需 2 秒。</translation>
    </message>
    <message>
        <source>The device does not answer. Check the baud rate, then identify it again.</source>
        <translation>设备没有应答。请检查波特率，然后重新识别。</translation>
    </message>
    <message>
        <source>The device refused %1.</source>
        <translation>设备拒绝了 %1。</translation>
    </message>
    <message>
        <source>The settings were sent and the device has restarted.</source>
        <translation>设置已发送，设备已重启。</translation>
    </message>
    <message>
        <source>The device refused at least one of %1.</source>
        <translation>设备至少拒绝了以下命令之一：%1。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The device does not answer, although its data arrive. Identify it again.</source>
        <translation>能收到设备的数据，但设备没有应答。请重新识别。</translation>
    </message>
    <message>
        <source>The answer was damaged on the line. Identify the device again.</source>
        <translation>应答在线路上损坏。请重新识别设备。</translation>
    </message>
    <message>
        <source>Save anyway</source>
        <translation>仍然保存</translation>
    </message>
    <message>
        <source>The device is not sending text. The baud rate may be wrong.</source>
        <translation>设备发送的不是文本。波特率可能有误。</translation>
    </message>
    <message>
        <source>%1 Hz needs %2 % of the line&apos;s capacity at %3 baud: samples will be lost.</source>
        <translation>波特率为 %3 时，%1 Hz 需要线路容量的 %2 %：会丢失采样。</translation>
    </message>
</context>
<context>
    <name>form_threed</name>
    <message>
        <source>3D view</source>
        <translation>三维视图</translation>
    </message>
    <message>
        <source>Attitude</source>
        <translation>姿态</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>基准姿态</translation>
    </message>
    <message>
        <source>Set &amp;home</source>
        <translation>设为基准(&amp;H)</translation>
    </message>
    <message>
        <source>Take the live pose as the reference</source>
        <translation>将当前实时姿态设为基准</translation>
    </message>
    <message>
        <source>&amp;Clear home</source>
        <translation>清除基准(&amp;C)</translation>
    </message>
    <message>
        <source>Forget the reference</source>
        <translation>清除已设的基准姿态</translation>
    </message>
    <message>
        <source>Mounting</source>
        <translation>安装方向</translation>
    </message>
    <message>
        <source>How the axes of the device lie in the body</source>
        <translation>设备坐标轴在载体中的方向</translation>
    </message>
    <message>
        <source>RFU / ENU 312 (Z-X-Y)</source>
        <translation>RFU / ENU 312 (Z-X-Y)</translation>
    </message>
    <message>
        <source>FLU / NWU / ZYX Intrinsic (Z-Y-X)</source>
        <translation>FLU / NWU / ZYX 内旋 (Z-Y-X)</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>模型</translation>
    </message>
    <message>
        <source>Jet</source>
        <translation>喷气机</translation>
    </message>
    <message>
        <source>Cube</source>
        <translation>立方体</translation>
    </message>
    <message>
        <source>Plane</source>
        <translation>飞机</translation>
    </message>
    <message>
        <source>Spaceship</source>
        <translation>飞船</translation>
    </message>
    <message>
        <source>&amp;Load…</source>
        <translation>加载(&amp;L)…</translation>
    </message>
    <message>
        <source>Show a model from a file: X forward, Y up, Z to the right</source>
        <translation>显示文件中的模型：X 向前，Y 向上，Z 向右</translation>
    </message>
    <message>
        <source>&amp;Reset view</source>
        <translation>重置视图(&amp;R)</translation>
    </message>
    <message>
        <source>Put the camera back (Home key in the picture, or double-click)</source>
        <translation>恢复初始视角（在画面中按 Home 键或双击）</translation>
    </message>
    <message>
        <source>The 3D picture needs OpenGL, which is not available here. The numbers are complete.</source>
        <translation>三维画面需要 OpenGL，但当前环境不可用。数值显示不受影响。</translation>
    </message>
    <message>
        <source>The 3D picture cannot be drawn here. The numbers are complete.</source>
        <translation>当前环境无法绘制三维画面。数值显示不受影响。</translation>
    </message>
    <message>
        <source>Current preset: RFU body / ENU navigation, Euler 312 intrinsic (Z-X-Y).</source>
        <translation>当前预设：RFU 载体系 / ENU 导航系，欧拉角 312 内旋 (Z-X-Y)。</translation>
    </message>
    <message>
        <source>Current preset: FLU body or NWU body, Euler ZYX intrinsic (Z-Y-X).</source>
        <translation>当前预设：FLU 载体系或 NWU 载体系，欧拉角 ZYX 内旋 (Z-Y-X)。</translation>
    </message>
    <message>
        <source>Current preset: Unknown.</source>
        <translation>当前预设：未知。</translation>
    </message>
    <message>
        <source>Capture the current live pose as Home to compare mounting bias and installation offsets.</source>
        <translation>采集当前实时姿态作为基准，以比较安装偏差和偏移。</translation>
    </message>
    <message>
        <source>Home pose captured. Delta shows the live attitude relative to the stored home reference.</source>
        <translation>已采集基准姿态。“相对基准”显示实时姿态相对于该基准的偏差。</translation>
    </message>
    <message>
        <source>Waiting for live attitude data to capture home pose.</source>
        <translation>正在等待实时姿态数据，以采集基准姿态。</translation>
    </message>
    <message>
        <source>No attitude</source>
        <translation>无姿态数据</translation>
    </message>
    <message>
        <source>From quaternion</source>
        <translation>来自四元数</translation>
    </message>
    <message>
        <source>From Euler angles</source>
        <translation>来自欧拉角</translation>
    </message>
    <message>
        <source>Open 3D asset</source>
        <translation>打开三维模型</translation>
    </message>
    <message>
        <source>3D Assets (*.obj *.mesh)</source>
        <translation>三维模型 (*.obj *.mesh)</translation>
    </message>
    <message>
        <source>The 3D picture could not be loaded. See the log for the reason.</source>
        <translation>无法加载三维画面。原因请见日志。</translation>
    </message>
</context>
<context>
    <name>form_updater</name>
    <message>
        <source>Firmware Update</source>
        <translation>固件升级</translation>
    </message>
    <message>
        <source>Image file</source>
        <translation>映像文件</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>烧录</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Copies what is shown above together with the log, for a report</source>
        <translation>复制上方显示的内容和日志，便于反馈问题</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>The port was closed: connect again before the download.</source>
        <translation>串口已关闭：烧录前请重新连接。</translation>
    </message>
    <message>
        <source>Please select image
</source>
        <translation>请选择映像文件
</translation>
    </message>
    <message>
        <source>PATH: %1
</source>
        <translation>路径：%1
</translation>
    </message>
    <message>
        <source>Text Files(*.hex)</source>
        <translation>HEX 文件 (*.hex)</translation>
    </message>
    <message>
        <source>FILE:%1
</source>
        <translation>文件：%1
</translation>
    </message>
    <message>
        <source>No file selected
</source>
        <translation>未选择文件
</translation>
    </message>
    <message>
        <source>Failed to open file
</source>
        <translation>打开文件失败
</translation>
    </message>
    <message>
        <source>Failed to parse HEX file
</source>
        <translation>解析 HEX 文件失败
</translation>
    </message>
    <message>
        <source>SIZE:%1 bytes
</source>
        <translation>大小：%1 字节
</translation>
    </message>
    <message>
        <source>SP:0x%1
</source>
        <translation>SP：0x%1
</translation>
    </message>
    <message>
        <source>PC:0x%1
</source>
        <translation>PC：0x%1
</translation>
    </message>
    <message>
        <source>ADDR:0x%1
</source>
        <translation>地址：0x%1
</translation>
    </message>
    <message>
        <source>
--- Connecting to bootloader ---
</source>
        <translation>
--- 正在连接引导程序 ---
</translation>
    </message>
    <message>
        <source>CONNECT ERR<byte value="xd"/>
</source>
        <translation>连接失败<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>Please check:
</source>
        <translation>请检查：
</translation>
    </message>
    <message>
        <source>  - Device is powered on
</source>
        <translation>  - 设备是否已上电
</translation>
    </message>
    <message>
        <source>  - Serial port is correct
</source>
        <translation>  - 串口是否正确
</translation>
    </message>
    <message>
        <source>  - Bootloader is installed
</source>
        <translation>  - 是否已安装引导程序
</translation>
    </message>
    <message>
        <source>Connect OK
</source>
        <translation>连接成功
</translation>
    </message>
    <message>
        <source>PKT SIZE:%1
</source>
        <translation>数据包大小：%1
</translation>
    </message>
    <message>
        <source>FLASH SIZE:%1KB
</source>
        <translation>闪存容量：%1 KB
</translation>
    </message>
    <message>
        <source>SDID:</source>
        <translation>SDID：</translation>
    </message>
    <message>
        <source>KBOOT:%1.%2.%3
</source>
        <translation>KBOOT：%1.%2.%3
</translation>
    </message>
    <message>
        <source>SECTOR:%1
</source>
        <translation>扇区大小：%1
</translation>
    </message>
    <message>
        <source>
Ready to download firmware.
</source>
        <translation>
可以烧录固件。
</translation>
    </message>
    <message>
        <source>
--- Loading HEX file ---
</source>
        <translation>
--- 正在加载 HEX 文件 ---
</translation>
    </message>
    <message>
        <source>NO IMAGE<byte value="xd"/>
</source>
        <translation>没有映像<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>
--- Starting download ---
</source>
        <translation>
--- 开始烧录 ---
</translation>
    </message>
    <message>
        <source>Download failed
</source>
        <translation>烧录失败
</translation>
    </message>
    <message>
        <source>Not connected to bootloader<byte value="xd"/>
</source>
        <translation>未连接到引导程序<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>Press Connect first: the device has to run its bootloader.</source>
        <translation>请先点击“连接”：设备须处于引导程序中。</translation>
    </message>
    <message>
        <source>Update complete, image running...
</source>
        <translation>升级完成，固件正在运行...
</translation>
    </message>
    <message>
        <source>A download is running.</source>
        <translation>正在烧录。</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Chooses the image, an Intel HEX file</source>
        <translation>选择映像文件（Intel HEX 格式）</translation>
    </message>
    <message>
        <source>Restarts the device into its bootloader</source>
        <translation>重启设备并进入引导程序</translation>
    </message>
    <message>
        <source>Erases the device&apos;s firmware and writes the image</source>
        <translation>擦除设备中的固件并写入映像</translation>
    </message>
    <message>
        <source>Press Connect first.</source>
        <translation>请先点击“连接”。</translation>
    </message>
    <message>
        <source>Not connected. Connect restarts the device; this takes up to 4 s.</source>
        <translation>未连接。点击“连接”会重启设备，最长需 4 秒。</translation>
    </message>
    <message>
        <source>Ready to download</source>
        <translation>可以烧录</translation>
    </message>
    <message>
        <source>Waiting for the bootloader</source>
        <translation>等待连接引导程序</translation>
    </message>
    <message>
        <source>The connection to the device was lost.</source>
        <translation>与设备的连接已断开。</translation>
    </message>
    <message>
        <source>The bootloader refused a packet.</source>
        <translation>引导程序拒绝了一个数据包。</translation>
    </message>
    <message>
        <source>The bootloader aborted the transfer.</source>
        <translation>引导程序中止了传输。</translation>
    </message>
    <message>
        <source>The bootloader did not answer the erase command within 1.5 s.</source>
        <translation>引导程序未在 1.5 秒内应答擦除命令。</translation>
    </message>
    <message>
        <source>The bootloader did not answer the write command within 1.5 s.</source>
        <translation>引导程序未在 1.5 秒内应答写入命令。</translation>
    </message>
    <message>
        <source>The bootloader did not acknowledge a packet.</source>
        <translation>引导程序未确认某个数据包。</translation>
    </message>
    <message>
        <source>No bootloader answered.</source>
        <translation>引导程序没有应答。</translation>
    </message>
    <message>
        <source>The flash may be partly erased: the firmware may not start any more.</source>
        <translation>闪存可能已被部分擦除：固件可能无法再启动。</translation>
    </message>
    <message>
        <source>The flash is erased: the device has no firmware now.</source>
        <translation>闪存已擦除：设备中现已没有固件。</translation>
    </message>
    <message>
        <source>Nothing was written, but the flash may be erased: the firmware may not start any more.</source>
        <translation>未写入任何数据，但闪存可能已被擦除：固件可能无法再启动。</translation>
    </message>
    <message>
        <source>%1 of %2 bytes were written: the firmware is incomplete and cannot start.</source>
        <translation>已写入 %1 / %2 字节：固件不完整，无法启动。</translation>
    </message>
    <message>
        <source>Check the cable, open the port again and press Connect.</source>
        <translation>请检查连接线，重新打开串口，然后点击“连接”。</translation>
    </message>
    <message>
        <source>Check power, port and baud rate, then press Connect again.</source>
        <translation>请检查电源、串口和波特率，然后再次点击“连接”。</translation>
    </message>
    <message>
        <source>It had reported status %1 before.</source>
        <translation>此前它曾报告状态 %1。</translation>
    </message>
    <message>
        <source>%1 of %2 bytes</source>
        <translation>%1 / %2 字节</translation>
    </message>
    <message>
        <source>%1 · %2 KB/s · %3 s left</source>
        <translation>%1 · %2 KB/s · 剩余 %3 s</translation>
    </message>
    <message>
        <source>Bootloader %1, %2 KB of flash in sectors of %3 bytes, packets of up to %4 bytes, chip %5</source>
        <translation>引导程序 %1，闪存 %2 KB，扇区 %3 字节，数据包最大 %4 字节，芯片 %5</translation>
    </message>
    <message>
        <source>%1 bytes from %2, stack pointer %3, reset vector %4</source>
        <translation>%1 字节，起始地址 %2，栈指针 %3，复位向量 %4</translation>
    </message>
    <message>
        <source>Restart device</source>
        <translation>重启设备</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>The device is still in its bootloader: it sends no data until it restarts.</source>
        <translation>设备仍处于引导程序中：重启之前不会发送数据。</translation>
    </message>
    <message>
        <source>Stop the download</source>
        <translation>停止烧录</translation>
    </message>
    <message>
        <source>No bootloader is connected.</source>
        <translation>未连接引导程序。</translation>
    </message>
    <message>
        <source>The download is being stopped.</source>
        <translation>正在停止烧录。</translation>
    </message>
    <message>
        <source>Stops the download; asks first</source>
        <translation>停止烧录（会先询问）</translation>
    </message>
    <message>
        <source>No download is running.</source>
        <translation>没有正在进行的烧录。</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>烧录已停止。</translation>
    </message>
    <message>
        <source>&amp;Save report…</source>
        <translation>保存报告(&amp;S)…</translation>
    </message>
    <message>
        <source>Copy &amp;log</source>
        <translation>复制日志(&amp;L)</translation>
    </message>
    <message>
        <source>The report was saved to %1.</source>
        <translation>报告已保存到 %1。</translation>
    </message>
    <message>
        <source>The report could not be saved to %1: %2</source>
        <translation>无法将报告保存到 %1：%2</translation>
    </message>
    <message>
        <source>The serial port is being opened: press Connect again in a moment.</source>
        <translation>正在打开串口：请稍后再次点击“连接”。</translation>
    </message>
    <message>
        <source>Nothing was erased and nothing was written: see the reasons above.</source>
        <translation>未擦除也未写入任何数据：原因见上方。</translation>
    </message>
    <message>
        <source>Restart the program</source>
        <translation>重启程序</translation>
    </message>
    <message>
        <source>Use packets of %1 bytes</source>
        <translation>使用 %1 字节的数据包</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>保存报告</translation>
    </message>
    <message>
        <source>Text Files(*.txt)</source>
        <translation>文本文件 (*.txt)</translation>
    </message>
    <message>
        <source>The bootloader is connected: press Download, or Restart device.</source>
        <translation>引导程序已连接：请点击“烧录”或“重启设备”。</translation>
    </message>
    <message>
        <source>Download anyway</source>
        <translation>仍然烧录</translation>
    </message>
    <message>
        <source>The download has to finish first: until then the device has no complete firmware.</source>
        <translation>须等待烧录完成：在此之前，设备中没有完整的固件。</translation>
    </message>
    <message>
        <source>Leave as is</source>
        <translation>保持现状</translation>
    </message>
    <message>
        <source>The device restarts with its present firmware.</source>
        <translation>设备将以现有固件重启。</translation>
    </message>
    <message>
        <source>The bootloader did not confirm the restart. Unplug the device and plug it in again if no data arrive.</source>
        <translation>引导程序未确认重启。如果收不到数据，请拔下设备后重新插入。</translation>
    </message>
    <message>
        <source>Stop the download? The device will have no complete firmware. Its bootloader remains: press Connect, then Download.</source>
        <translation>要停止烧录吗？设备中将没有完整的固件。引导程序会保留：之后请点击“连接”，再点击“烧录”。</translation>
    </message>
    <message>
        <source>Keep downloading</source>
        <translation>继续烧录</translation>
    </message>
    <message>
        <source>The image could not be loaded; the device is unchanged. Choose another file.</source>
        <translation>无法加载映像；设备未被更改。请选择其他文件。</translation>
    </message>
    <message>
        <source>The file %1 no longer exists: choose another one.</source>
        <translation>文件 %1 已不存在：请选择其他文件。</translation>
    </message>
    <message>
        <source>The file has changed since the interrupted update. Press Download to write it as it is now.</source>
        <translation>自升级中断后，文件已被更改。点击“烧录”将写入其当前内容。</translation>
    </message>
    <message>
        <source>Saves what was done and how it ended as text</source>
        <translation>将升级过程和结果保存为文本</translation>
    </message>
    <message>
        <source>No update has run yet.</source>
        <translation>尚未进行升级。</translation>
    </message>
    <message>
        <source>There are doubts about this image: tick &quot;%1&quot; to write it.</source>
        <translation>此映像存在疑点：勾选“%1”后才能写入。</translation>
    </message>
    <message>
        <source>Leaves the bootloader: the device starts its present firmware</source>
        <translation>退出引导程序：设备启动现有固件</translation>
    </message>
    <message>
        <source>The file has changed since it was loaded. Choose it again to load the new version.</source>
        <translation>文件在加载后已被更改。请重新选择，以加载新版本。</translation>
    </message>
    <message>
        <source>Erase anyway</source>
        <translation>仍然擦除</translation>
    </message>
    <message>
        <source>The serial port is closed or accepts no data.</source>
        <translation>串口已关闭或不接收数据。</translation>
    </message>
    <message>
        <source>The device answered, but not like a bootloader.</source>
        <translation>设备有应答，但不是引导程序的应答。</translation>
    </message>
    <message>
        <source>Nothing was written: the device&apos;s firmware is unchanged.</source>
        <translation>未写入任何数据：设备中的固件未被更改。</translation>
    </message>
    <message>
        <source>The bootloader is still in the device: press Connect, then Download.</source>
        <translation>引导程序仍在设备中：请点击“连接”，然后点击“烧录”。</translation>
    </message>
    <message>
        <source>The bootloader accepts no data: it reports packets of %1 bytes.</source>
        <translation>引导程序不接收数据：其报告的数据包大小为 %1 字节。</translation>
    </message>
    <message>
        <source>There is no file at this path: choose an image.</source>
        <translation>此路径下没有文件：请选择映像文件。</translation>
    </message>
    <message>
        <source>Not a loadable Intel HEX file. See debug.log for the reason, or choose another file.</source>
        <translation>不是可加载的 Intel HEX 文件。原因请见 debug.log，或选择其他文件。</translation>
    </message>
</context>
<context>
    <name>port_choice</name>
    <message>
        <source>Enter a baud rate.</source>
        <translation>请输入波特率。</translation>
    </message>
    <message>
        <source>Enter a whole number, such as %1.</source>
        <translation>请输入整数，例如 %1。</translation>
    </message>
    <message>
        <source>Too low: the lowest rate is %1.</source>
        <translation>过低：波特率不得低于 %1。</translation>
    </message>
    <message>
        <source>Too high: the highest rate is %1.</source>
        <translation>过高：波特率不得高于 %1。</translation>
    </message>
</context>
<context>
    <name>product_profile</name>
    <message>
        <source>Legacy Wireless Gateway (0x62/0x63)</source>
        <translation>旧版无线网关 (0x62/0x63)</translation>
    </message>
    <message>
        <source>Unknown Legacy Device</source>
        <translation>未知旧版设备</translation>
    </message>
    <message>
        <source>Unknown Mz14 Device</source>
        <translation>未知 Mz14 设备</translation>
    </message>
    <message>
        <source>Unknown Wireless Gateway (0x62/0x63)</source>
        <translation>未知无线网关 (0x62/0x63)</translation>
    </message>
    <message>
        <source>Unknown Device</source>
        <translation>未知设备</translation>
    </message>
</context>
<context>
    <name>serial_error_text</name>
    <message>
        <source>You are not allowed to open %1.</source>
        <translation>没有打开 %1 的权限。</translation>
    </message>
    <message>
        <source>Ask the administrator of this computer for access.</source>
        <translation>请向本机管理员申请访问权限。</translation>
    </message>
    <message>
        <source>Run &quot;%1&quot; in a terminal, then log out and in again.</source>
        <translation>请在终端中运行“%1”，然后注销并重新登录。</translation>
    </message>
    <message>
        <source>The connection to %1 was lost: the device was unplugged or switched off. Check the cable, then open the port again.</source>
        <translation>与 %1 的连接已断开：设备被拔出或已关机。请检查连接线，然后重新打开串口。</translation>
    </message>
    <message>
        <source>%1 is not there. Check the cable and that the device is switched on.</source>
        <translation>%1 不存在。请检查连接线，并确认设备已开机。</translation>
    </message>
    <message>
        <source>Another program uses %1. Close it and try again.</source>
        <translation>%1 正被其他程序占用。请关闭该程序后重试。</translation>
    </message>
    <message>
        <source>%1 is open already.</source>
        <translation>%1 已经打开。</translation>
    </message>
    <message>
        <source>%1 is not a serial port, or it does not support %2 baud. Choose another port or baud rate.</source>
        <translation>%1 不是串口，或不支持波特率 %2。请选择其他端口或波特率。</translation>
    </message>
    <message>
        <source>%1 cannot be used (error %2). Unplug the device, plug it in again and retry.</source>
        <translation>无法使用 %1（错误 %2）。请拔下设备，重新接入后再试。</translation>
    </message>
</context>
<context>
    <name>session_text</name>
    <message>
        <source>The port is being opened.</source>
        <translation>正在打开串口。</translation>
    </message>
    <message>
        <source>A command waits for the device&apos;s reply.</source>
        <translation>有命令正在等待设备应答。</translation>
    </message>
    <message>
        <source>Data arrive: the baud rate is right.</source>
        <translation>正在接收数据：波特率正确。</translation>
    </message>
    <message>
        <source>The device runs its bootloader. Restart it in the firmware update window first.</source>
        <translation>设备处于引导程序中。请先在固件升级窗口中重启设备。</translation>
    </message>
    <message>
        <source>Press Connect first.</source>
        <translation>请先点击“连接”。</translation>
    </message>
    <message>
        <source>No download runs.</source>
        <translation>没有正在进行的烧录。</translation>
    </message>
    <message>
        <source>The port is being closed.</source>
        <translation>正在关闭串口。</translation>
    </message>
    <message>
        <source>The device runs its bootloader.
It sends no data until it restarts.</source>
        <translation>设备处于引导程序中。
重启之前不会发送数据。</translation>
    </message>
    <message>
        <source>Firmware is being written.
Do not unplug the device.</source>
        <translation>正在写入固件。
请勿拔下设备。</translation>
    </message>
    <message>
        <source>Trying %1 baud...</source>
        <translation>正在尝试 %1 波特...</translation>
    </message>
    <message>
        <source>Not connected. Open a serial port first.</source>
        <translation>未连接。请先打开串口。</translation>
    </message>
    <message>
        <source>A firmware download is running and must finish first.</source>
        <translation>正在烧录固件，须先等待其完成。</translation>
    </message>
    <message>
        <source>The connection was lost. The device is waited for.</source>
        <translation>连接已断开。正在等待设备。</translation>
    </message>
    <message>
        <source>Over UDP the device can only be listened to: commands may get lost or arrive in another order. Connect by tcp: or rfc2217: to send them.</source>
        <translation>通过 UDP 只能接收设备的数据：命令可能丢失或乱序到达。要发送命令，请通过 tcp: 或 rfc2217: 连接。</translation>
    </message>
    <message>
        <source>This is a recording: there is no device to send anything to.</source>
        <translation>这是记录文件：没有可接收命令的设备。</translation>
    </message>
    <message>
        <source>The baud rate of this source is not set from here. Connect by rfc2217: to set that of a serial server.</source>
        <translation>此数据源的波特率不在此处设置。要设置串口服务器的波特率，请通过 rfc2217: 连接。</translation>
    </message>
    <message>
        <source>The connection was lost.
Waiting for the device...</source>
        <translation>连接已断开。
正在等待设备...</translation>
    </message>
    <message>
        <source>This is a file already: capturing it again would add nothing.</source>
        <translation>这已经是一个文件:再次捕获没有意义。</translation>
    </message>
    <message>
        <source>The file is being opened.</source>
        <translation>正在打开文件。</translation>
    </message>
    <message>
        <source>Playing back %1
%2 packets/s</source>
        <translation>正在回放 %1
%2 包/秒</translation>
    </message>
</context>
<context>
    <name>source_address</name>
    <message>
        <source>&quot;?%1&quot; is not known here. Only the baud rate can follow, such as ?baud=%2.</source>
        <translation>无法识别“?%1”。此处只能附加波特率，例如 ?baud=%2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a baud rate. It is a whole number from %2 to %3.</source>
        <translation>“%1”不是波特率。波特率是 %2 到 %3 之间的整数。</translation>
    </message>
    <message>
        <source>The address of a network source looks like %1.</source>
        <translation>网络数据源的地址格式如 %1。</translation>
    </message>
    <message>
        <source>The bracket after the IPv6 address is missing, as in %1.</source>
        <translation>IPv6 地址后缺少右方括号，正确写法如 %1。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IPv6 address.</source>
        <translation>“%1”不是 IPv6 地址。</translation>
    </message>
    <message>
        <source>Only a colon and the port can follow the bracket, as in %1.</source>
        <translation>方括号后只能是冒号和端口，例如 %1。</translation>
    </message>
    <message>
        <source>An IPv6 address needs brackets, as in %1.</source>
        <translation>IPv6 地址须加方括号，例如 %1。</translation>
    </message>
    <message>
        <source>Add the host, as in %1.</source>
        <translation>请加上主机，例如 %1。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name or address of a host.</source>
        <translation>“%1”不是主机名或主机地址。</translation>
    </message>
    <message>
        <source>Add the port, as in %1.</source>
        <translation>请加上端口，例如 %1。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a port. It is a whole number from 1 to 65535.</source>
        <translation>“%1”不是端口。端口是 1 到 65535 之间的整数。</translation>
    </message>
    <message>
        <source>Add the port, as in serial:/dev/ttyUSB0.</source>
        <translation>请加上串口，例如 serial:/dev/ttyUSB0。</translation>
    </message>
    <message>
        <source>Add the path of the file, as in file:recordings/walk.mcap.</source>
        <translation>请加上文件路径，例如 file:recordings/walk.mcap。</translation>
    </message>
    <message>
        <source>Nothing can follow &quot;demo:&quot;.</source>
        <translation>“demo:”之后不能有其他内容。</translation>
    </message>
    <message>
        <source>Choose a port, or type its path or an address.</source>
        <translation>请选择串口，或输入串口路径或地址。</translation>
    </message>
    <message>
        <source>This text is longer than any address.</source>
        <translation>此文本过长，不可能是地址。</translation>
    </message>
    <message>
        <source>This text contains characters that no address has.</source>
        <translation>此文本包含地址中不会出现的字符。</translation>
    </message>
    <message>
        <source>&quot;%1:&quot; is not known here. Sources are serial:, tcp:, rfc2217:, udp:, file: and demo:.</source>
        <translation>无法识别“%1:”。可用的数据源为 serial:、tcp:、rfc2217:、udp:、file: 和 demo:。</translation>
    </message>
</context>
<context>
    <name>source_error_text</name>
    <message>
        <source>Another program is connected to %1, and only one can be.</source>
        <translation>另有程序已连接到 %1，而它只允许一个连接。</translation>
    </message>
    <message>
        <source>Close it there. If it is gone already, let the server drop old connections (ser2net: the option kickolduser).</source>
        <translation>请关闭该程序。如果它已不存在，请让服务器断开旧连接（ser2net：选项 kickolduser）。</translation>
    </message>
    <message>
        <source>%1 closed the connection.</source>
        <translation>%1 关闭了连接。</translation>
    </message>
    <message>
        <source>Another program may have connected to the same port, which ends this connection, or the server was stopped. Close the other program, or start the server, then open the source again.</source>
        <translation>可能有其他程序连接到同一端口，因而中断了此连接；也可能是服务器已停止。请关闭该程序或启动服务器，然后重新打开数据源。</translation>
    </message>
    <message>
        <source>The serial port at %1 does not accept 8 data bits without parity. Check the settings of the server.</source>
        <translation>%1 的串口不支持 8 个数据位、无校验的设置。请检查服务器的设置。</translation>
    </message>
    <message>
        <source>The serial port at %1 was set to %2 baud instead of %3. Choose a rate that it supports.</source>
        <translation>%1 的串口波特率被设为 %2，而不是 %3。请选择其支持的波特率。</translation>
    </message>
    <message>
        <source>There is no host with the name %1. Check its spelling, or enter its address instead.</source>
        <translation>没有名为 %1 的主机。请检查拼写，或改为输入其地址。</translation>
    </message>
    <message>
        <source>Nothing listens on port %1 of %2. Start the serial server there (such as ser2net), or check the port.</source>
        <translation>%2 的端口 %1 上没有程序在监听。请在该主机上启动串口服务器（例如 ser2net），或检查端口。</translation>
    </message>
    <message>
        <source>There is no way to %1 (%2). Check the network cable or Wi-Fi of both computers.</source>
        <translation>无法到达 %1（%2）。请检查两台计算机的网线或 Wi-Fi。</translation>
    </message>
    <message>
        <source>%1 did not answer. Check that it is switched on, and that no firewall blocks port %2.</source>
        <translation>%1 没有应答。请确认其已开机，且没有防火墙阻止端口 %2。</translation>
    </message>
    <message>
        <source>%1 closed the connection and gave the reason &quot;%2&quot;.</source>
        <translation>%1 关闭了连接，原因为“%2”。</translation>
    </message>
    <message>
        <source>Check the settings of the server and its serial port.</source>
        <translation>请检查服务器及其串口的设置。</translation>
    </message>
    <message>
        <source>The connection to %1 was lost: it does not answer any more. Check the network, then open the source again.</source>
        <translation>与 %1 的连接已断开：对方不再应答。请检查网络，然后重新打开数据源。</translation>
    </message>
    <message>
        <source>The simulator is not installed: there is no program &quot;%1&quot; beside this one. Install it, or connect a device.</source>
        <translation>未安装模拟器：本程序所在的文件夹中没有程序“%1”。请安装模拟器，或连接设备。</translation>
    </message>
    <message>
        <source>The simulator has ended.</source>
        <translation>模拟器已结束。</translation>
    </message>
    <message>
        <source>The simulator could not be started.</source>
        <translation>无法启动模拟器。</translation>
    </message>
</context>
<context>
    <name>status_text</name>
    <message>
        <source>Unconnected...</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Connected...</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Using fallback product profile.</source>
        <translation>正在使用备用产品配置。</translation>
    </message>
    <message>
        <source>Product info deferred during live stream.</source>
        <translation>实时数据传输期间暂缓读取产品信息。</translation>
    </message>
    <message>
        <source>Product info pending...</source>
        <translation>正在等待产品信息...</translation>
    </message>
    <message>
        <source>Single node (0x%1)</source>
        <translation>单节点 (0x%1)</translation>
    </message>
    <message>
        <source>Gateway (0x%1)</source>
        <translation>网关 (0x%1)</translation>
    </message>
    <message>
        <source>Items %1</source>
        <translation>数据项 %1</translation>
    </message>
    <message>
        <source>Connected.
No frame stream detected.</source>
        <translation>已连接。
未检测到数据帧流。</translation>
    </message>
    <message>
        <source>Building connection...</source>
        <translation>正在建立连接...</translation>
    </message>
    <message>
        <source>[Serial]
%1 %2
</source>
        <translation>[串口]
%1 %2
</translation>
    </message>
    <message>
        <source>Protocol:</source>
        <translation>协议:</translation>
    </message>
    <message>
        <source>FrameRate:</source>
        <translation>帧率:</translation>
    </message>
    <message>
        <source>Wireless</source>
        <translation>无线</translation>
    </message>
    <message>
        <source>DONGLE ID</source>
        <translation>接收器 ID</translation>
    </message>
    <message>
        <source>TOTAL OF NODE</source>
        <translation>节点总数</translation>
    </message>
</context>
<context>
    <name>verdict_text</name>
    <message>
        <source>A packet of %1 bytes cannot be acknowledged within 0.2 s at %2 baud.</source>
        <translation>波特率为 %2 时，%1 字节的数据包无法在 0.2 秒内得到确认。</translation>
    </message>
    <message>
        <source>Packets of %1 bytes can.</source>
        <translation>%1 字节的数据包则可以。</translation>
    </message>
    <message>
        <source>The image is empty.</source>
        <translation>映像为空。</translation>
    </message>
    <message>
        <source>The file begins at %1, but it would be written to %2, where the first file of this run began. Restart the program to write it to its own address.</source>
        <translation>文件的起始地址为 %1，但会被写入 %2，即本次运行中首个文件的起始地址。要将其写入自身的地址，请重启程序。</translation>
    </message>
    <message>
        <source>The image does not fit the %1 KB of flash from this address on.</source>
        <translation>从该地址起，映像超出了 %1 KB 的闪存空间。</translation>
    </message>
    <message>
        <source>The image&apos;s build of %1 is older than the device&apos;s: %2.</source>
        <translation>映像的构建日期为 %1，早于设备的构建：%2。</translation>
    </message>
    <message>
        <source>Not verified: this bootloader cannot read the flash back.</source>
        <translation>未验证：此引导程序无法回读闪存。</translation>
    </message>
    <message>
        <source>Not verified: the chip is locked against reading.</source>
        <translation>未验证：芯片已启用读保护。</translation>
    </message>
    <message>
        <source>Not verified: the bootloader refused to read the flash back (status %1).</source>
        <translation>未验证：引导程序拒绝回读闪存（状态 %1）。</translation>
    </message>
    <message>
        <source>%1 packets were sent again after silence and may have been written twice: the firmware may be wrong even if it starts.</source>
        <translation>%1 个数据包因无应答而重发，可能被写入两次：固件即使能启动，也可能有误。</translation>
    </message>
    <message>
        <source>But the bootloader reported status %1.</source>
        <translation>但引导程序报告了状态 %1。</translation>
    </message>
    <message>
        <source>But the bootloader did not confirm the whole image.</source>
        <translation>但引导程序未确认完整的映像。</translation>
    </message>
    <message>
        <source>%1 bytes were written in %2 s, %3 of %4 packets were sent again.</source>
        <translation>已写入 %1 字节，用时 %2 秒；重发数据包 %3 / %4 个。</translation>
    </message>
    <message>
        <source>Reading the flash back found wrong bytes: %1, the first at %2.</source>
        <translation>回读闪存时发现错误字节：共 %1 个，首个位于 %2。</translation>
    </message>
    <message>
        <source>The device was not restarted: this firmware must not run.</source>
        <translation>设备未重启：此固件不可运行。</translation>
    </message>
    <message>
        <source>Reading the flash back was stopped.</source>
        <translation>闪存回读已停止。</translation>
    </message>
    <message>
        <source>The connection to the device was lost.</source>
        <translation>与设备的连接已断开。</translation>
    </message>
    <message>
        <source>Check the cable, open the port again and press Connect.</source>
        <translation>请检查连接线，重新打开串口，然后点击“连接”。</translation>
    </message>
    <message>
        <source>Connecting to the bootloader…</source>
        <translation>正在连接引导程序…</translation>
    </message>
    <message>
        <source>Checking the image…</source>
        <translation>正在检查映像…</translation>
    </message>
    <message>
        <source>Erasing the flash…</source>
        <translation>正在擦除闪存…</translation>
    </message>
    <message>
        <source>Writing the image…</source>
        <translation>正在写入映像…</translation>
    </message>
    <message>
        <source>Reading the flash back…</source>
        <translation>正在回读闪存…</translation>
    </message>
    <message>
        <source>Restarting the device…</source>
        <translation>正在重启设备…</translation>
    </message>
    <message>
        <source>Waiting for the device…</source>
        <translation>正在等待设备…</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>已验证</translation>
    </message>
    <message>
        <source>Not verified</source>
        <translation>未验证</translation>
    </message>
    <message>
        <source>Doubtful</source>
        <translation>存疑</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Same build</source>
        <translation>版本未变</translation>
    </message>
    <message>
        <source>Did not come back</source>
        <translation>设备未恢复</translation>
    </message>
    <message>
        <source>The device is back with its new firmware.</source>
        <translation>设备已恢复，正在运行新固件。</translation>
    </message>
    <message>
        <source>The device is back. If it does not work as it should, press Connect and download again.</source>
        <translation>设备已恢复。如果工作不正常，请点击“连接”并重新烧录。</translation>
    </message>
    <message>
        <source>Press Connect and download again, at a higher baud rate if there is one.</source>
        <translation>请点击“连接”并重新烧录；如有更高的波特率可用，请改用。</translation>
    </message>
    <message>
        <source>Unplug it and plug it in again, and open its port: the new firmware may use another baud rate. If its bootloader answers there, this window opens by itself.</source>
        <translation>请拔下设备后重新插入，并打开其串口：新固件可能使用其他波特率。如果引导程序在该串口应答，此窗口会自动打开。</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Before: %1 · Now: %2</source>
        <translation>之前：%1 · 现在：%2</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>%1 baud or more is also fast enough.</source>
        <translation>改用 %1 或更高的波特率也足够快。</translation>
    </message>
    <message>
        <source>The bootloader accepts no data: it reports packets of %1 bytes.</source>
        <translation>引导程序不接收数据：其报告的数据包大小为 %1 字节。</translation>
    </message>
    <message>
        <source>An earlier erase of this size took this chip more than 1.5 s, and the protocol waits no longer: it would be erased and not written.</source>
        <translation>此芯片此前擦除这一大小耗时超过 1.5 秒，而协议最多等待 1.5 秒：芯片会被擦除，却无法写入。</translation>
    </message>
    <message>
        <source>The file has no end record: part of it may be missing.</source>
        <translation>文件没有结束记录：可能缺少一部分内容。</translation>
    </message>
    <message>
        <source>Data after a blank line, where the image ends, would not be written.</source>
        <translation>映像到空行为止，空行之后的数据不会被写入。</translation>
    </message>
    <message>
        <source>Data after a start address or an unknown record, where the image ends, would not be written.</source>
        <translation>映像到起始地址记录或未知记录为止，该记录之后的数据不会被写入。</translation>
    </message>
    <message>
        <source>Data after the end record would not be written.</source>
        <translation>结束记录之后的数据不会被写入。</translation>
    </message>
    <message>
        <source>The image does not begin at the start of a sector (%1 bytes): what precedes it in the sector is erased too.</source>
        <translation>映像不是从扇区（%1 字节）的起点开始：同一扇区中位于映像之前的内容也会被擦除。</translation>
    </message>
    <message>
        <source>The previous update was for %1, this one is for %2.</source>
        <translation>上次升级的地址为 %1，本次为 %2。</translation>
    </message>
    <message>
        <source>The stack pointer is not a word address in RAM.</source>
        <translation>栈指针不是 RAM 中按字对齐的地址。</translation>
    </message>
    <message>
        <source>The reset vector is not a Thumb address inside the image.</source>
        <translation>复位向量不是映像范围内的 Thumb 地址。</translation>
    </message>
    <message>
        <source>The image is very small for firmware.</source>
        <translation>作为固件，此映像过小。</translation>
    </message>
    <message>
        <source>Not verified: reading the flash back did not finish.</source>
        <translation>未验证：闪存回读未能完成。</translation>
    </message>
    <message>
        <source>The flash was read back and matches the image.</source>
        <translation>已回读闪存：内容与映像一致。</translation>
    </message>
    <message>
        <source>The bootloader is still in the device: press Connect, then Download.</source>
        <translation>引导程序仍在设备中：请点击“连接”，然后点击“烧录”。</translation>
    </message>
    <message>
        <source>The image was written, but not verified.</source>
        <translation>映像已写入，但未经验证。</translation>
    </message>
    <message>
        <source>The folder is not writable: after a crash there would have been no reminder.</source>
        <translation>文件夹不可写：假如升级期间程序崩溃，就不会有任何提醒。</translation>
    </message>
    <message>
        <source>But the device came back with its previous build.</source>
        <translation>但设备恢复后，版本仍与之前相同。</translation>
    </message>
    <message>
        <source>Check that this is the right file.</source>
        <translation>请确认所选文件是否正确。</translation>
    </message>
    <message>
        <source>Check that this is the right file, then press Connect and download again.</source>
        <translation>请确认所选文件是否正确，然后点击“连接”并重新烧录。</translation>
    </message>
    <message>
        <source>But the device has not identified itself since its restart.</source>
        <translation>但设备重启后尚未报告自身信息。</translation>
    </message>
    <message>
        <source>The update of %1 with %2, started %3, was written completely but not verified.</source>
        <translation>以 %2 对 %1 进行的升级（开始于 %3）已全部写入，但未经验证。</translation>
    </message>
    <message>
        <source>The update of %1 with %2, started %3, was interrupted at %4 of %5 bytes.</source>
        <translation>以 %2 对 %1 进行的升级（开始于 %3）在 %4 / %5 字节处中断。</translation>
    </message>
</context>
</TS>
